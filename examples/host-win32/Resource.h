#pragma once

/* Numbers of the menu's commands, for the sources and the resource script. */
#define IDR_MAIN 100
/* Keys that a text being edited needs for itself. */
#define IDR_CHART_KEYS 101
#define IDD_DATA 102

#define ID_FILE_OPEN 1001
#define ID_FILE_SAVE 1002
#define ID_FILE_SAVE_AS 1003
#define ID_FILE_PRINT 1004
#define ID_FILE_PRINT_TO_FILE 1005
#define ID_FILE_EXIT 1006
#define ID_FILE_EXPORT_PNG 1007
#define ID_FILE_EXPORT_SVG 1008
#define ID_FILE_EXPORT_EMF 1009
#define ID_EDIT_UNDO 1011
#define ID_EDIT_REDO 1012
#define ID_EDIT_COPY 1013
#define ID_VIEW_ZOOM_IN 1021
#define ID_VIEW_ZOOM_OUT 1022
#define ID_VIEW_TRUE_SIZE 1023
#define ID_HELP_KEYS 1031
#define ID_CHART_PROPERTIES 1041
#define ID_CHART_TEXT 1042
#define ID_CHART_COLOR 1043
#define ID_CHART_RESET 1044
#define ID_CHART_DATA 1045
/* One a kind of chart, in the order of the menus. */
#define ID_FILE_NEW_FIRST 1051
#define ID_CHART_KIND_FIRST 1061

#define IDC_CELLS 1101
#define IDC_TABLES 1102
