"""Every file that the program writes on a tour through all its screens, read back by others."""

import shutil
import subprocess
import xml.etree.ElementTree
from concurrent.futures import ThreadPoolExecutor

from locale_environment import need, of_locale, run
from program import PATIENCE, Skipped, expect

AT_ONCE = 3
VALUE = "{urn:oasis:names:tc:opendocument:xmlns:office:1.0}value"


def tour(program, place, locale):
    """Takes the tour, in a folder of its own."""
    player = need(program, "desktop/norvane-tour")
    folder = place / "folder"
    shutil.copytree(program.installed, folder, ignore=shutil.ignore_patterns("norvane", "*.ini"))
    environment = {**of_locale(program, locale), "HOME": str(place), "XDG_RUNTIME_DIR": str(place),
                   "QT_QPA_PLATFORM": "offscreen"}
    status, printed = run([player, folder, place / "pictures"], env=environment, cwd=place)
    expect(f"the status of the tour under {locale}", status, 0)
    (place / "printed").write_bytes(printed)
    # LibreOffice names what it converts by this.
    shutil.copy(place / "pictures/10-totals.xlsx", place / f"{locale}.xlsx")


def cells(file):
    """The cells of a workbook, read by a library that isn't the one that wrote them."""
    try:
        import openpyxl
    except ImportError:
        raise Skipped("python3-openpyxl is missing") from None
    sheet = openpyxl.load_workbook(file).active
    return {cell.coordinate: cell.value for row in sheet.iter_rows() for cell in row
            if cell.value is not None}


def numbers_of_office(program, environment, files):
    """The numbers of workbooks as LibreOffice reads them, by the stem of the file's name."""
    soffice = shutil.which("soffice")
    if soffice is None:
        raise Skipped("LibreOffice is missing")
    place = program.new_place()
    subprocess.run([soffice, "--headless", f"-env:UserInstallation=file://{place}/profile",
                    "--convert-to", "fods", "--outdir", place, *files], env=environment,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=PATIENCE, check=True)
    return {file.stem: [float(cell.get(VALUE)) for cell
                        in xml.etree.ElementTree.parse(file).iter() if cell.get(VALUE)]
            for file in place.glob("*.fods")}


def with_points(cells):
    return {place: value.replace(",", ".") if isinstance(value, str) else value
            for place, value in cells.items()}


def compare_tours(places, books, wanted):
    """All tours say the same, and leave the same files, but for the decimal sign of texts."""
    plain = places["C"]
    commas = 0
    for name, place in places.items():
        shown = cells(books[name])
        commas += shown != with_points(shown)
        expect(f"the workbook under {name}", with_points(shown), with_points(wanted))
        expect(f"the settings under {name}", (place / "folder/norvane.ini").read_bytes(),
               (plain / "folder/norvane.ini").read_bytes())
        expect(f"the answers under {name}",
               (place / "printed").read_bytes().replace(b",", b".").split(),
               (plain / "printed").read_bytes().replace(b",", b".").split())
    expect("the locales whose lines have commas", commas, 2)


def files(program, locales):
    places = {name: program.new_place() for name in locales}
    with ThreadPoolExecutor(AT_ONCE) as threads:
        list(threads.map(lambda name: tour(program, places[name], name), locales))
    books = {name: places[name] / f"{name}.xlsx" for name in locales}
    wanted = cells(books["C"])
    numbers = [value for value in wanted.values() if isinstance(value, float)]
    expect("the sums of the tour are numbers", len(numbers), 3)
    for number in numbers:
        expect(f"{number} is on the totals screen",
               f"{number:.15g}".encode() in (places["C"] / "printed").read_bytes(), True)
    compare_tours(places, books, wanted)
    read = numbers_of_office(program, of_locale(program, "de_DE"), list(books.values()))
    expect("what LibreOffice reads under de_DE", read, dict.fromkeys(locales, numbers))
    return "settings, answers and workbooks agree; so read openpyxl and LibreOffice"
