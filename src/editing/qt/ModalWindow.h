#pragma once

#include <QDialog>
#include <QTimer>
#include <string_view>

namespace millichart {

/// The window of a dialog or of a sheet: modal, with OK and Cancel, and with word of the user's changes, at
/// most once a frame.
class ModalWindow : public QDialog {
public:
    /// On `owner`, which may be null. It is not the owner's child: should a host destroy that while the
    /// window is open, the window stays.
    ModalWindow(QWidget* owner, std::string_view title);

    /// Shows the window until it is closed; true after OK.
    bool Run();

    void MarkChanged();

    virtual void BringToFront(QWidget& /*panel*/) {}

    /// Does what a dialog does about something the user did. If that throws, which must not go through Qt,
    /// the window closes as cancelled.
    template <class Act> void Guard(Act act) {
        try {
            act();
        } catch (...) {
            reject();
        }
    }

    void accept() override;
    void done(int result) override;

protected:
    virtual bool OnOK() = 0;
    virtual void OnChanged() = 0;

private:
    QWidget* m_owner;
    QTimer m_changes;
};

} // namespace millichart
