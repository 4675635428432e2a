/* Norvane's calculations for C, and for whatever calls C: plain structs in, plain structs out.
 *
 * Names end with the version of what they take. A later version adds names and keeps these as they
 * are. All functions may be called from any number of threads. */
#ifndef NORVANE_H
#define NORVANE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The version of the names below. */
#define NORVANE_INTERFACE 1

enum { NORVANE_STEEL, NORVANE_COPPER, NORVANE_METRIC, NORVANE_SHEET };

/* What is insulated. A number that isn't given is NaN. */
typedef struct norvane_object_1 {
  double medium_C;         /* temperature of the medium */
  double ambient_C;        /* of the surroundings */
  double humidity_percent; /* for the condensation thickness alone */
  double thickness_mm;     /* for the heat loss alone */
  double diameter_mm;      /* outer diameter of the bare pipe; not read for a sheet */
  double lambda_W_mK;      /* as declared, at 40 degrees Celsius */
  double alpha_W_m2K;      /* the usual one of the kind when not given */
  double length_m;         /* of a pipe */
  double area_m2;          /* of a sheet */
  double hours_per_day;
  double days;
  int32_t kind;
} norvane_object_1;

/* The places of a heat loss in `value` and `shown`. */
enum {
  NORVANE_LAMBDA,         /* W/mK at the mean temperature */
  NORVANE_ALPHA,          /* W/m2K in effect */
  NORVANE_SURFACE,        /* degrees Celsius */
  NORVANE_BARE,           /* W/m of pipe or W/m2 of sheet, without insulation */
  NORVANE_INSULATED,      /* the same with insulation */
  NORVANE_SAVING_PERCENT, /* from here on only when something is saved */
  NORVANE_SAVING,         /* W/m or W/m2 */
  NORVANE_GAS,            /* m3 in all hours, days and metres */
  NORVANE_OIL,            /* litres */
  NORVANE_ELECTRICITY,    /* kWh */
  NORVANE_PLACES
};

/* The places of a condensation thickness. */
enum {
  NORVANE_LEAST_THICKNESS, /* mm */
  NORVANE_CONDENSATION_LAMBDA,
  NORVANE_CONDENSATION_ALPHA,
  NORVANE_CONDENSATION_SURFACE
};

enum {
  NORVANE_RESULT,    /* all values are there */
  NORVANE_NO_SAVING, /* the insulated object loses more than the bare one: no savings */
  NORVANE_NO_RESULT  /* `reason` tells why */
};

typedef struct norvane_result_1 {
  double value[NORVANE_PLACES]; /* NaN where there is none */
  double shown[NORVANE_PLACES]; /* the same as the program shows it, with its decimals */
  int32_t status;
  char reason[124]; /* ASCII, empty when there is a result */
} norvane_result_1;

/* An object of usual values; what has none is NaN. */
void norvane_usual_object_1(norvane_object_1* object);

/* Both write the whole result and return its status. */
int32_t norvane_heat_loss_1(const norvane_object_1* object, norvane_result_1* result);
int32_t norvane_condensation_1(const norvane_object_1* object, norvane_result_1* result);

#ifdef __cplusplus
}
#endif

#endif
