/// What <windows.h> defines and an unwary header trips over: each public header compiles after it.
#define min(a, b) (((a) < (b)) ? (a) : (b))
#define max(a, b) (((a) > (b)) ? (a) : (b))
#define near
#define far
#define small char
#define interface struct
#define IN
#define OUT
#define OPTIONAL
#define CONST const
#define DELETE 0x00010000L
#define ERROR 0
#define TRANSPARENT 1
#define OPAQUE 2
#define RGB(r, g, b) 0
#define DrawText DrawTextW
#define GetObject GetObjectW
#define GetMessage GetMessageW
