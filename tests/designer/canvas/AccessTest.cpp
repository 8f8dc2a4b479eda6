#include "designer/canvas/Canvas.h"
#include "model/ChartEdits.h"

#include <QAccessible>
#include <QTest>
#include <gtest/gtest.h>
#include <set>

namespace designer::test {
namespace {

using millichart::PartKind;

struct Reader {
    explicit Reader(Document document) : Canvas(std::move(document)) { QAccessible::setActive(true); }

    QAccessibleInterface* Root() { return QAccessible::queryAccessibleInterface(&Canvas.Widget); }

    OpenCanvas Canvas;
};

/// All below it hang together: parents know their children's numbers, and rectangles stand in theirs.
std::size_t Checked(QAccessibleInterface* node, std::multiset<QString>& names) {
    std::size_t count = 1;
    names.insert(node->text(QAccessible::Name));
    for (int i = 0; i < node->childCount(); ++i) {
        QAccessibleInterface* child = node->child(i);
        if (child == nullptr || child->parent() != node) {
            ADD_FAILURE() << node->text(QAccessible::Name).toStdString() << " " << i;
            return count;
        }
        EXPECT_EQ(node->indexOfChild(child), i);
        EXPECT_EQ(node->child(i), child) << "one interface a part";
        EXPECT_TRUE(child->isValid());
        EXPECT_FALSE(child->rect().isEmpty()) << child->text(QAccessible::Name).toStdString();
        count += Checked(child, names);
    }
    return count;
}

TEST(Access, TellsABarChartAsATree) {
    Reader reader(Example("histogram-china-summer-medals"));
    QAccessibleInterface* root = reader.Root();
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->role(), QAccessible::Chart);
    std::multiset<QString> names;
    EXPECT_GT(Checked(root, names), reader.Canvas->Parts().size());

    QAccessibleInterface* data = nullptr;
    for (int i = 0; i < root->childCount(); ++i) {
        if (root->child(i)->text(QAccessible::Name) == QStringLiteral("数据")) {
            data = root->child(i);
        }
    }
    ASSERT_NE(data, nullptr);
    QAccessibleInterface* group = data->child(0);
    EXPECT_EQ(group->role(), QAccessible::Grouping);
    QAccessibleInterface* bar = group->child(0);
    ASSERT_NE(bar, nullptr);
    const auto facts = FactsOf(*reader.Canvas->Shown()->Document, reader.Canvas->Shown()->Chart,
                               reader.Canvas.Part(PartKind::Bar).Part);
    EXPECT_EQ(bar->text(QAccessible::Name), QString::fromStdString(facts.Name));
    EXPECT_EQ(bar->text(QAccessible::Value), QString::fromStdString(facts.Value));
    EXPECT_FALSE(facts.Name.empty());

    const QPoint middle = bar->rect().center();
    EXPECT_EQ(root->childAt(middle.x(), middle.y()), bar);
    EXPECT_EQ(data->childAt(middle.x(), middle.y()), group);
    bar->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(reader.Canvas->Selected(), reader.Canvas.Part(PartKind::Bar).Part);
    EXPECT_TRUE(bar->state().focused);
    EXPECT_EQ(root->focusChild(), bar);
}

TEST(Access, KeepsItsPartsWhileTheChartHasThemAndReadsLongCurvesInShort) {
    Reader reader(Example("pie-oceans"));
    QAccessibleInterface* first = reader.Root()->child(0);
    const QRect before = first->rect();
    reader.Canvas->SetZoom(2.0);
    EXPECT_NE(first->rect(), before);
    reader.Canvas.Show(Example("pie-oceans"));
    EXPECT_EQ(reader.Root()->child(0), first);

    reader.Canvas.Show(LongCurve(50'000));
    std::multiset<QString> names;
    QAccessibleInterface* curve = nullptr;
    QAccessibleInterface* root = reader.Root();
    for (int i = 0; i < root->childCount(); ++i) {
        if (root->child(i)->text(QAccessible::Name) == QStringLiteral("数据")) {
            curve = root->child(i)->child(0);
        }
    }
    ASSERT_NE(curve, nullptr);
    ASSERT_EQ(curve->childCount(), 1000);
    QAccessibleInterface* last = curve->child(999);
    EXPECT_EQ(curve->indexOfChild(last), 999);
    EXPECT_GT(last->rect().left(), curve->child(0)->rect().left() + 100);
    EXPECT_EQ(last->parent(), curve);
}

} // namespace
} // namespace designer::test
