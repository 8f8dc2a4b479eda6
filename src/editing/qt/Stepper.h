#pragma once

#include <QWidget>
#include <functional>

class QLineEdit;

namespace millichart {

/// A pair of arrows beside an edit. A click, and the Up and Down keys in the edit, tell which way to step,
/// again and again while they are held down; the edit itself is the listener's to change.
class Stepper : public QWidget {
public:
    Stepper(QLineEdit* edit, QWidget* parent);

    /// Called with 1 for up, −1 for down.
    std::function<void(int delta)> OnStep;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddArrow(Qt::ArrowType arrow, int delta);

    QLineEdit* m_edit;
};

} // namespace millichart
