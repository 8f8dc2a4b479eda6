#pragma once

#include "editing/win32/ReflectedControl.h"
#include "foundation/Export.h"

namespace millichart {

/// A list of dash styles, each shown as a sample of its line, in place of a combo box with strings that its
/// owner draws, all of one height (CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS). Item i stands for
/// dash style i.
class MILLICHART_API CLineStyleComboBox : public ReflectedControl {
public:
    explicit CLineStyleComboBox(HWND comboBox);
    ~CLineStyleComboBox() override;

    /// Adds the items, "0" to "4".
    void Initialize();

    /// 20 pixels, at 96 dpi.
    virtual void MeasureItem(MEASUREITEMSTRUCT& item);
    /// Items stay in the order in which they were added.
    virtual int CompareItem(const COMPAREITEMSTRUCT& item);
    virtual void DrawItem(const DRAWITEMSTRUCT& item);

private:
    std::optional<LRESULT> OnReflected(UINT message, WPARAM wParam, LPARAM lParam) override;
};

} // namespace millichart
