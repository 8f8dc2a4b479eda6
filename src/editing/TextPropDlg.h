#pragma once

#include "editing/RecordDialog.h"
#include "foundation/TextProperty.h"

namespace millichart {

/// Frame, background, prefix, postfix, angle, font and colour of a text. A record without a font gets the
/// default one.
class CTextPropDlg : public RecordDialog<TextProperty> {
public:
    explicit CTextPropDlg(TextProperty property);

    const DialogTemplate& Template() const override;
    void OnClicked(DialogView& view, int id) override;

private:
    std::span<const Field<TextProperty>> Fields() const override;
};

} // namespace millichart
