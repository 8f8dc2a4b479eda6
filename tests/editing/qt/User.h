#pragma once

#include <QDialog>
#include <deque>
#include <functional>

namespace millichart::test {

/// Somebody in front of the screen: acts in the windows that open while a call of the library runs, one step
/// after the other. A window that does not come fails the test and ends the call.
///
///     User user;
///     user.In("线条属性", [] { User::Press(Qt::Key_Return); });
///     EXPECT_TRUE(EditPen(&pen));
class User {
public:
    User();
    ~User();

    User(const User&) = delete;
    User& operator=(const User&) = delete;

    /// Acts as soon as a window of this title is in front.
    void In(const char* title, std::function<void()> act);
    /// The same, when `isReady` besides.
    void In(const char* title, std::function<bool()> isReady, std::function<void()> act);
    /// Reads a message box and presses one of its buttons.
    void Answer(const char* title, const char* message, int button);

    /// In the control that has the focus.
    /// A button that a mnemonic presses is pressed for a moment first: wait for what it does.
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    static void Type(const char* text);

    /// In the colour dialog, "#rrggbb" and OK.
    static void EnterColor(const char* color);

    static QDialog& Front();

    /// The control with this accessible name in the front window.
    template <class Widget> static Widget& Find(const char* name) {
        return dynamic_cast<Widget&>(
            Named(name, [](QWidget* w) { return dynamic_cast<Widget*>(w) != nullptr; }));
    }

    static QString FocusName();

private:
    struct Step {
        QString Title;
        std::function<bool()> IsReady;
        std::function<void()> Act;
    };

    static QString NameOf(const QWidget& widget);
    static QWidget& Named(const char* name, const std::function<bool(QWidget*)>& isKind);
    void Watch();
    void Tick();
    void GiveUp();

    std::deque<Step> m_steps;
    int m_ticks = 0;
    std::shared_ptr<bool> m_isThere = std::make_shared<bool>(true);
};

} // namespace millichart::test
