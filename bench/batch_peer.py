#!/usr/bin/env python3
"""Peer of norvane-batch: the same heat losses from the same schedule, written as engineers write them.

  batch_peer.py numpy|loop|iterrows SCHEDULE RESULTS

`numpy` is vectorised with NumPy and pandas, `loop` goes row by row with Python's csv, `iterrows` row by
row through a pandas table. Formulas,
singles and doubles, defaults and shown decimals are those of norvane-batch; both write the rows with
their ten results behind them. They know no bad rows: that is what they leave out, to their favour.
"""

import csv
import math
import struct
import sys

KINDS = {"steel": 0, "copper": 1, "metric": 2, "sheet": 3}
RESULTS = ["lambda_mean_W_mK", "alpha_used_W_m2K", "surface_C", "bare_W_per_m_or_m2",
           "insulated_W_per_m_or_m2", "saving_percent", "saving_W_per_m_or_m2", "gas_m3", "oil_l",
           "electricity_kWh"]
DECIMALS = [3, 1, 1, 1, 1, 0, 2, 2, 2, 2]
PI = 3.1415


def with_numpy(schedule, results):
    import numpy
    import pandas

    rows = pandas.read_csv(schedule)
    single = lambda values: numpy.asarray(values, numpy.float32).astype(float)
    kind = rows["kind"].map(KINDS).to_numpy()
    sheet = kind == 3
    medium, ambient = rows["medium_C"].to_numpy(float), rows["ambient_C"].to_numpy(float)
    length = numpy.where(sheet, rows["area_m2"].fillna(1), rows["length_m"].fillna(1))
    period = rows["hours_per_day"].fillna(24).to_numpy(float)
    days = rows["days"].fillna(30).to_numpy(float)
    declared = single(rows["lambda_W_mK"].fillna(0.038))
    lambda_0 = single(declared - (0.038 - 0.032))
    usual = numpy.where((kind == 1) | (kind == 2), 10.0, 12.5)
    typed = rows["alpha_W_m2K"].to_numpy(float)
    alpha = single(numpy.where(typed > 0, typed, usual))
    d = single(rows["thickness_mm"] / 1000.0)
    pipe = single(rows["diameter_mm"].fillna(1000.0) / 1000.0)

    dt = medium - ambient
    lam = single(single((medium + ambient) / 2.0) * 0.00015 + lambda_0)
    outer = single(d + d + pipe)
    log = numpy.log(outer / pipe)
    surface = single(numpy.where(sheet, dt / (alpha * d / lam + 1.0),
                                 dt / (alpha / (2 * lam) * outer * log + 1.0)) + ambient)
    bare = single(numpy.where(sheet, dt * alpha, dt * alpha * PI * pipe))
    insulated = single(numpy.where(sheet, dt / (d / lam + 1.0 / alpha),
                                   dt * PI / (1.0 / (2 * lam) * log + 1.0 / (alpha * outer))))
    gain = bare - insulated
    heat = single(abs(gain) * 3.6)
    percent = numpy.rint(abs(numpy.divide(gain, bare, out=numpy.zeros_like(gain), where=bare != 0))
                         * 100.0)
    values = [lam, alpha, surface, bare, insulated, percent, single(abs(gain)),
              heat / 34880.0 * period * days * length, heat / 43860.0 * period * days * length,
              single(heat / 3600.0 * period * days * length)]
    saves = (medium <= ambient) | (gain >= 0)
    for i, (name, decimals, value) in enumerate(zip(RESULTS, DECIMALS, values, strict=True)):
        rows[name] = numpy.round(value if i < 5 else numpy.where(saves, value, numpy.nan), decimals)
    rows["remark"] = numpy.where(saves, "", "no saving")
    rows.to_csv(results, index=False)


def single(value):
    return struct.unpack("f", struct.pack("f", value))[0]


def one_row(row):
    """The ten results of a row, None for those of a saving that isn't there."""
    number = lambda name, usual: float(row[name]) if row[name] else usual
    kind = KINDS[row["kind"]]
    medium, ambient = float(row["medium_C"]), float(row["ambient_C"])
    lambda_0 = single(single(number("lambda_W_mK", 0.038)) - (0.038 - 0.032))
    alpha = number("alpha_W_m2K", 0)
    alpha = single(alpha if alpha > 0 else 10.0 if kind in (1, 2) else 12.5)
    d = single(float(row["thickness_mm"]) / 1000.0)
    dt = medium - ambient
    lam = single(single((medium + ambient) / 2.0) * 0.00015 + lambda_0)
    if kind == 3:
        length = number("area_m2", 1)
        surface = single(dt / (alpha * d / lam + 1.0) + ambient)
        bare = single(dt * alpha)
        insulated = single(dt / (d / lam + 1.0 / alpha))
    else:
        length = number("length_m", 1)
        pipe = single(float(row["diameter_mm"]) / 1000.0)
        outer = single(d + d + pipe)
        log = math.log(outer / pipe)
        surface = single(dt / (alpha / (2 * lam) * outer * log + 1.0) + ambient)
        bare = single(dt * alpha * PI * pipe)
        insulated = single(dt * PI / (1.0 / (2 * lam) * log + 1.0 / (alpha * outer)))
    first = [lam, alpha, surface, bare, insulated]
    gain = bare - insulated
    if medium > ambient and gain < 0:
        return first + [None] * 5
    heat = single(abs(gain) * 3.6)
    hours, days = number("hours_per_day", 24), number("days", 30)
    percent = round(abs(gain / bare) * 100.0) if bare != 0 else 0
    return first + [percent, single(abs(gain)), heat / 34880.0 * hours * days * length,
                    heat / 43860.0 * hours * days * length,
                    single(heat / 3600.0 * hours * days * length)]


def row_by_row(schedule, results):
    with open(schedule, newline="") as rows, open(results, "w", newline="") as out:
        reader = csv.DictReader(rows)
        writer = csv.writer(out, lineterminator="\n")
        writer.writerow([*reader.fieldnames, *RESULTS, "remark"])
        for row in reader:
            values = one_row(row)
            texts = ["" if value is None else f"{value:.{decimals}f}"
                     for value, decimals in zip(values, DECIMALS)]
            writer.writerow([*row.values(), *texts, "no saving" if values[-1] is None else ""])


def through_a_table(schedule, results):
    import pandas

    rows = pandas.read_csv(schedule, dtype=str, keep_default_na=False)
    values = [one_row(row) for _, row in rows.iterrows()]
    for i, (name, decimals) in enumerate(zip(RESULTS, DECIMALS, strict=True)):
        rows[name] = ["" if row[i] is None else f"{row[i]:.{decimals}f}" for row in values]
    rows["remark"] = ["no saving" if row[-1] is None else "" for row in values]
    rows.to_csv(results, index=False)


if __name__ == "__main__":
    {"numpy": with_numpy, "loop": row_by_row, "iterrows": through_a_table}[sys.argv[1]](*sys.argv[2:4])
