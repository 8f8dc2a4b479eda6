#pragma once

#include <QWidget>
#include <functional>

namespace millichart {

/// A small picture of a legend's twelve places, of which one is picked by a click or the arrow keys.
class PositionPicker final : public QWidget {
public:
    explicit PositionPicker(QWidget* parent);

    /// −1 if none is.
    int Selection() const { return m_selection; }

    void Select(int place);

    std::function<void()> OnPicked;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Pick(int place);

    int m_selection = -1;
};

} // namespace millichart
