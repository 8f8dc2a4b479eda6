#include "editing/Edit.h"

#include "editing/DlgLinePenProp.h"
#include "editing/DlgLogarithmValueRange.h"
#include "editing/DlgNaturalValueRange.h"
#include "editing/PartPlaces.h"
#include "editing/Preview.h"
#include "editing/Sheets.h"
#include "editing/TextPropDlg.h"

using namespace millichart;

namespace {

/// Shows a window on a copy of the record, which takes it back after OK.
template <class Window, class Record> bool Run(Window& window, Record& record) {
    const bool isAccepted = RunModal(window);
    if (isAccepted) {
        Record edited = window.Edited(); // may run out of memory, and then leaves the record whole
        record = std::move(edited);
    }
    return isAccepted;
}

template <class Window, class Record> bool Edit(Record* record) {
    if (record == nullptr) {
        return false;
    }
    Window window(*record);
    return Run(window, *record);
}

template <class Window, class Record>
bool EditOn(Window window, Record& record, const std::function<void(const Record&)>& preview) {
    if (!preview) {
        return Run(window, record);
    }
    Previewed<Window> previewed(std::move(window), preview);
    const bool isAccepted = Run(previewed, record);
    if (!isAccepted) {
        preview(record);
    }
    return isAccepted;
}

template <class Window, class Record>
bool Edit(Record* record, const std::function<void(const Record&)>& preview) {
    return record != nullptr && EditOn(Window(*record), *record, preview);
}

template <class Window, class Record>
bool EditAt(const SheetStart& start, Record* record, const std::function<void(const Record&)>& preview) {
    if (record == nullptr) {
        return false;
    }
    Window window(*record);
    window.OpenAt(start);
    return EditOn(std::move(window), *record, preview);
}

} // namespace

bool EditPen(penlode::Pen* pen) {
    if (pen == nullptr) {
        return false;
    }
    CDlgLinePenProp dialog(ValuesOf(*pen));
    const bool isAccepted = RunModal(dialog);
    if (isAccepted) {
        Apply(dialog.Edited(), *pen);
    }
    return isAccepted;
}

bool EditTextProperty(TextProperty* property) {
    return Edit<CTextPropDlg>(property);
}

bool EditPieProp(PieProp* prop) {
    return Edit<CSheetPie>(prop);
}

bool EditHalfPieProp(HalfPieProp* prop) {
    return Edit<CSheetHalfPie>(prop);
}

bool EditHalfPieHalfPieProp(HalfPieHalfPieProp* prop) {
    return Edit<CSheetHalfPieHalfPie>(prop);
}

bool EditHalfPieHistogramProp(HalfPieHistogramProp* prop) {
    return Edit<CSheetHalfPieHistogram>(prop);
}

bool EditHistogramProp(HistogramProp* prop) {
    return Edit<CSheetHistogram>(prop);
}

bool EditCurveProp(CurveProp* prop) {
    return Edit<CSheetCurve>(prop);
}

bool EditNaturalValueRange(double* minimum, double* maximum, double* majorStep, double* minorStep) {
    if (minimum == nullptr || maximum == nullptr || majorStep == nullptr || minorStep == nullptr) {
        return false;
    }
    NaturalValueRange range{*minimum, *maximum, *majorStep, *minorStep};
    const bool isAccepted = Edit<CDlgNaturalValueRange>(&range);
    if (isAccepted) {
        *minimum = range.Minimum;
        *maximum = range.Maximum;
        *majorStep = range.MajorStep;
        *minorStep = range.MinorStep;
    }
    return isAccepted;
}

bool EditLogarithmValueRange(double* minimum, double* maximum) {
    if (minimum == nullptr || maximum == nullptr) {
        return false;
    }
    LogarithmValueRange range{*minimum, *maximum};
    const bool isAccepted = Edit<CDlgLogarithmValueRange>(&range);
    if (isAccepted) {
        *minimum = range.Minimum;
        *maximum = range.Maximum;
    }
    return isAccepted;
}

namespace millichart {

bool EditWithPreview(penlode::Pen* pen, const std::function<void(const penlode::Pen&)>& preview) {
    if (pen == nullptr || !preview) {
        return EditPen(pen);
    }
    const auto edited = [pen](const LinePenValues& values) {
        penlode::Pen trial = *pen;
        Apply(values, trial);
        return trial;
    };
    Previewed<CDlgLinePenProp> dialog(CDlgLinePenProp(ValuesOf(*pen)),
                                      [&](const LinePenValues& values) { preview(edited(values)); });
    const bool isAccepted = RunModal(dialog);
    if (isAccepted) {
        *pen = edited(dialog.Edited());
    } else {
        preview(*pen);
    }
    return isAccepted;
}

bool EditWithPreview(TextProperty* property, const std::function<void(const TextProperty&)>& preview) {
    return Edit<CTextPropDlg>(property, preview);
}

bool EditWithPreview(PieProp* prop, const std::function<void(const PieProp&)>& preview) {
    return Edit<CSheetPie>(prop, preview);
}

bool EditWithPreview(HalfPieProp* prop, const std::function<void(const HalfPieProp&)>& preview) {
    return Edit<CSheetHalfPie>(prop, preview);
}

bool EditWithPreview(HalfPieHalfPieProp* prop,
                     const std::function<void(const HalfPieHalfPieProp&)>& preview) {
    return Edit<CSheetHalfPieHalfPie>(prop, preview);
}

bool EditWithPreview(HalfPieHistogramProp* prop,
                     const std::function<void(const HalfPieHistogramProp&)>& preview) {
    return Edit<CSheetHalfPieHistogram>(prop, preview);
}

bool EditWithPreview(HistogramProp* prop, const std::function<void(const HistogramProp&)>& preview) {
    return Edit<CSheetHistogram>(prop, preview);
}

bool EditWithPreview(CurveProp* prop, const std::function<void(const CurveProp&)>& preview) {
    return Edit<CSheetCurve>(prop, preview);
}

bool EditWithPreview(PieProp* prop, const std::function<void(const PieProp&)>& preview, const ChartPart& at) {
    return EditAt<CSheetPie>(PlaceInPieSheet(at), prop, preview);
}

bool EditWithPreview(HalfPieProp* prop, const std::function<void(const HalfPieProp&)>& preview,
                     const ChartPart& at) {
    return EditAt<CSheetHalfPie>(PlaceInHalfPieSheet(at), prop, preview);
}

bool EditWithPreview(HalfPieHalfPieProp* prop, const std::function<void(const HalfPieHalfPieProp&)>& preview,
                     const ChartPart& at) {
    return EditAt<CSheetHalfPieHalfPie>(PlaceInHalfPieHalfPieSheet(at), prop, preview);
}

bool EditWithPreview(HalfPieHistogramProp* prop,
                     const std::function<void(const HalfPieHistogramProp&)>& preview, const ChartPart& at) {
    return EditAt<CSheetHalfPieHistogram>(PlaceInHalfPieHistogramSheet(at), prop, preview);
}

bool EditWithPreview(HistogramProp* prop, const std::function<void(const HistogramProp&)>& preview,
                     const ChartPart& at) {
    return EditAt<CSheetHistogram>(PlaceInHistogramSheet(at), prop, preview);
}

bool EditWithPreview(CurveProp* prop, const std::function<void(const CurveProp&)>& preview,
                     const ChartPart& at) {
    return EditAt<CSheetCurve>(PlaceInCurveSheet(at), prop, preview);
}

} // namespace millichart
