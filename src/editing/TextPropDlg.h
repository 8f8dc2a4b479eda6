#pragma once

#include "editing/RecordDialog.h"
#include "foundation/TextProperty.h"

namespace millichart {

/// Frame, background, prefix, postfix, angle, font and colour of a text. A record without a font gets the
/// default one.
class CTextPropDlg : public RecordDialog<TextProperty> {
public:
    explicit CTextPropDlg(const TextProperty& prop);

    void OnClicked(DialogView& view, int id) override;
};

} // namespace millichart
