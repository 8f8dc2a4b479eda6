#include "designer/canvas/Canvas.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <cmath>
#include <gtest/gtest.h>

namespace designer::test {

using millichart::ChartDocument;
using millichart::PlacedPart;

WithWidgets::WithWidgets() {
    if (QCoreApplication::instance() != nullptr) {
        return;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "designer-canvas-tests";
    static char* arguments[] = {name, nullptr};
    new QApplication(count, arguments); // stays: destroying it among the static objects crashes
}

OpenCanvas::OpenCanvas(Document document, QSize size) {
    Widget.resize(size);
    Widget.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&Widget));
    Widget.activateWindow();
    Widget.setFocus();
    Show(std::move(document));
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Widget));
}

void OpenCanvas::Show(Document document) {
    Widget.Show(std::move(document), ++m_revision);
    Widget.WaitUntilShown();
}

PlacedPart OpenCanvas::Part(millichart::PartKind kind, std::size_t index) const {
    for (const PlacedPart& part : Widget.Parts()) {
        if (part.Part.Kind == kind && part.Part.Index == index) {
            return part;
        }
    }
    ADD_FAILURE() << "there is no such part";
    return {};
}

QPoint OpenCanvas::Middle(const PlacedPart& part) const {
    return Widget.ToViewport(part.Box.Center());
}

void OpenCanvas::Click(QPoint at, Qt::MouseButton button) {
    QTest::mouseClick(Widget.viewport(), button, {}, at);
}

void OpenCanvas::MoveTo(QPoint at, Qt::MouseButtons pressed, Qt::KeyboardModifiers keys) {
    QMouseEvent event(QEvent::MouseMove, at, Widget.viewport()->mapToGlobal(QPointF(at)), Qt::NoButton,
                      pressed, keys);
    QApplication::sendEvent(Widget.viewport(), &event);
}

void OpenCanvas::Drag(QPoint from, QPoint to, Qt::MouseButton button, bool isKept) {
    QTest::mousePress(Widget.viewport(), button, {}, from);
    MoveTo((from + to) / 2, button);
    MoveTo(to, button);
    if (isKept) {
        QTest::mouseRelease(Widget.viewport(), button, {}, to);
    }
}

QImage OpenCanvas::Seen() {
    return Widget.grab().toImage();
}

void OpenCanvas::Picture(const char* name) {
    const QString folder = qEnvironmentVariable("MILLICHART_SEEN");
    if (!folder.isEmpty()) {
        EXPECT_TRUE(Seen().save(folder + u'/' + QString::fromUtf8(name) + QStringLiteral(".png")));
    }
}

Document Example(const char* name) {
    auto document = std::make_shared<ChartDocument>(
        ChartDocument::Load(std::string(MILLICHART_EXAMPLES) + "/" + name + ".chart.json"));
    EXPECT_TRUE(document->IsSound()) << name;
    return document;
}

Document LongCurve(std::size_t points) {
    auto document = std::make_shared<ChartDocument>(
        ChartDocument::FromText(std::string(millichart::FindChartKind("curve")->Template)));
    auto& curve = std::get<millichart::CurveDocument>(document->Content);
    std::vector<double> values(points);
    std::vector<std::int32_t> times(points);
    for (std::size_t i = 0; i < points; ++i) {
        values[i] = 50.0 + 40.0 * std::sin(static_cast<double>(i) * 0.0001);
        times[i] = static_cast<std::int32_t>(i);
    }
    curve.Data = {};
    curve.Prop.Plot.CurveName.resize(1);
    curve.Data.Values = {std::move(values)};
    curve.Data.Times = {std::move(times)};
    return document;
}

} // namespace designer::test
