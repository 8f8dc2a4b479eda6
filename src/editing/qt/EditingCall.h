#pragma once

#include <QTranslator>

class QWidget;

namespace millichart {

/// What a window needs of the application while it is open: there is one, this is its thread, and its
/// standard buttons and dialogs speak Chinese. The host's own translations come back with the call's end.
class EditingCall {
public:
    EditingCall();

    /// Without, no window can be shown: on a foreign thread, or in an application without widgets.
    bool CanShow() const { return m_canShow; }

    /// The host's active window. Null if it has none.
    QWidget* Owner() const;

private:
    bool m_canShow;
    QTranslator m_chinese; ///< its destructor takes it off again
};

} // namespace millichart
