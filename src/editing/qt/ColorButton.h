#pragma once

#include <QPushButton>
#include <cstdint>
#include <functional>

namespace marrowkit {

/// Shows a colour, a Windows RGB value; a click opens the colour dialog on it. Black at first.
class CColorButton : public QPushButton {
public:
    explicit CColorButton(QWidget* parent = nullptr);

    std::uint32_t Color() const { return m_colorRef; }

    void SetColor(std::uint32_t colorRef);

    /// Called after the user picked a colour.
    std::function<void()> OnPicked;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Pick();

    std::uint32_t m_colorRef = 0;
};

} // namespace marrowkit
