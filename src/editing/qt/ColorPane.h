#pragma once

#include "foundation/Export.h"

#include <QWidget>
#include <cstdint>

namespace millichart {

/// Shows a colour, a Windows RGB value, in a thin frame. Black at first.
class MILLICHART_API CColorPane : public QWidget {
public:
    explicit CColorPane(QWidget* parent = nullptr);

    std::uint32_t Color() const { return m_colorRef; }

    void SetColor(std::uint32_t colorRef);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::uint32_t m_colorRef = 0;
};

} // namespace millichart
