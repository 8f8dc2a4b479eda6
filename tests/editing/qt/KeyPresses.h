#pragma once

#ifdef __cplusplus
extern "C" {
#endif

/* Presses these keys, one after the other, in the dialogs that will open: ASCII characters, "\t" for Tab,
   "\n" for Enter and "\033" for Escape. The text is not copied. For hosts that have no application of their
   own yet. */
__attribute__((visibility("default"))) void PressKeys(const char* keys);

#ifdef __cplusplus
}
#endif
