#pragma once

/* Numbers of the menu's commands, for the sources and the resource script. */
#define IDR_MAIN 100

#define ID_FILE_OPEN 1001
#define ID_FILE_SAVE 1002
#define ID_FILE_SAVE_AS 1003
#define ID_FILE_PRINT 1004
#define ID_FILE_PRINT_TO_FILE 1005
#define ID_FILE_EXIT 1006
#define ID_EDIT_UNDO 1011
#define ID_EDIT_REDO 1012
#define ID_EDIT_COPY 1013
#define ID_VIEW_ZOOM_IN 1021
#define ID_VIEW_ZOOM_OUT 1022
#define ID_VIEW_TRUE_SIZE 1023
#define ID_HELP_KEYS 1031
