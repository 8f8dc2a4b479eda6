/* A host in C, without an application of Qt's: exits with 0 if it got back what the keys typed. */
#include "editing/ValueRanges.h"

#include "editing/qt/KeyPresses.h"

#include <locale.h>
#include <stdio.h>
#include <string.h>

static bool Check(const char* what, bool isRight) {
    if (!isRight) {
        fprintf(stderr, "%s\n", what);
    }
    return isRight;
}

int main(void) {
    double minimum = 0.0;
    double maximum = 100.0;
    double major = 10.0;
    double minor = 2.0;
    bool isRight = true;

    PressKeys("\t50\t5\t0.5\n");
    isRight &= Check("no OK of the linear range", EditNaturalValueRange(&minimum, &maximum, &major, &minor));
    isRight &= Check("not the linear range that was typed",
                     minimum == 0.0 && maximum == 50.0 && major == 5.0 && minor == 0.5);
    PressKeys("\t70\033");
    isRight &= Check("OK after Escape", !EditNaturalValueRange(&minimum, &maximum, &major, &minor));
    isRight &= Check("a number changed by Escape", maximum == 50.0);

    minimum = 0.01;
    maximum = 1000.0;
    PressKeys("\t1\n"); /* the next power that begins with 1 */
    isRight &= Check("no OK of the logarithmic range", EditLogarithmValueRange(&minimum, &maximum));
    isRight &= Check("not the logarithmic range that was picked", minimum == 0.01 && maximum == 10000.0);
    isRight &= Check("a null pointer accepted", !EditLogarithmValueRange(&minimum, NULL));
    isRight &= Check("the host's locale changed", strcmp(setlocale(LC_ALL, NULL), "C") == 0);
    return isRight ? 0 : 1;
}
