"""What 13 mm save on a steel pipe of 21 mm at 80 degrees, by ctypes: heat_loss.py LIBRARY"""
import ctypes
import sys

NAMES = ["medium_C", "ambient_C", "humidity_percent", "thickness_mm", "diameter_mm", "lambda_W_mK",
         "alpha_W_m2K", "length_m", "area_m2", "hours_per_day", "days"]


class Object(ctypes.Structure):
    _fields_ = [(name, ctypes.c_double) for name in NAMES] + [("kind", ctypes.c_int32)]


class Result(ctypes.Structure):
    _fields_ = [("value", ctypes.c_double * 10), ("shown", ctypes.c_double * 10),
                ("status", ctypes.c_int32), ("reason", ctypes.c_char * 124)]


norvane = ctypes.CDLL(sys.argv[1])
pipe, result = Object(), Result()
norvane.norvane_usual_object_1(ctypes.byref(pipe))
pipe.kind, pipe.medium_C, pipe.ambient_C, pipe.thickness_mm, pipe.diameter_mm = 0, 80, 15, 13, 21
norvane.norvane_heat_loss_1(ctypes.byref(pipe), ctypes.byref(result))
surface, percent, gas = result.shown[2], result.shown[5], result.shown[7]
print(f"surface {surface:.1f} C, {percent:.0f} %, gas {gas:.2f} m3")
pipe.medium_C = 180
norvane.norvane_heat_loss_1(ctypes.byref(pipe), ctypes.byref(result))
print(result.reason.decode())
