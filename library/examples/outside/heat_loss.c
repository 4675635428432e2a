/* What 13 mm save on a steel pipe of 21 mm at 80 degrees. */
#include <stdio.h>

#include "norvane.h"

int main(void) {
  norvane_object_1 pipe;
  norvane_result_1 result;
  norvane_usual_object_1(&pipe);
  pipe.kind = NORVANE_STEEL;
  pipe.medium_C = 80;
  pipe.ambient_C = 15;
  pipe.thickness_mm = 13;
  pipe.diameter_mm = 21;
  if (norvane_heat_loss_1(&pipe, &result) == NORVANE_NO_RESULT) {
    printf("%s\n", result.reason);
    return 1;
  }
  printf("surface %.1f C, %.0f %%, gas %.2f m3\n", result.shown[NORVANE_SURFACE],
         result.shown[NORVANE_SAVING_PERCENT], result.shown[NORVANE_GAS]);
  pipe.medium_C = 180;
  norvane_heat_loss_1(&pipe, &result);
  printf("%s\n", result.reason);
  return 0;
}
