// The macros of <X11/Xlib.h> behind the charts' headers: templates and inline functions still mean what they
// did.
#include "millichart.h"

#define Status int
#define None 0L
#define Bool int
#define True 1
#define False 0
#define Success 0
#define Always 2

bool DrawBehindX11(const millichart::CBasicPie& pie, penlode::IGraphicsEngine& engine) {
    pie.Draw(&engine);
    return penlode::Pen().SetDashStyle(penlode::DashStyle::Dash) == penlode::Pen().GetLastStatus();
}
