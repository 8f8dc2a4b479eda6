// A table with a million rows is shown as quickly as its part on the screen.
#include "designer/table/TableUser.h"

#include <QIdentityProxyModel>
#include <QScrollBar>
#include <QTest>

namespace designer::test {
namespace {

/// Stands between a view and its model and counts what is asked for.
class CountingModel : public QIdentityProxyModel {
public:
    QVariant data(const QModelIndex& index, int role) const override {
        ++Reads;
        return QIdentityProxyModel::data(index, role);
    }

    mutable int Reads = 0;
};

constexpr std::size_t kRows = 1000000;
constexpr int kFew = 20000; // for some dozens of cells, with all their roles

DataTable LargeTable() {
    DataTable table(RowHeads::Times);
    std::vector<std::int64_t> times(kRows);
    std::vector<double> numbers(kRows);
    for (std::size_t row = 0; row < kRows; ++row) {
        times[row] = static_cast<std::int64_t>(row);
        numbers[row] = static_cast<double>(row % 100);
    }
    table.TakeTimes(std::move(times));
    table.AddColumn("A", std::move(numbers));
    return table;
}

TEST(LargeTable, IsReadAsFarAsItIsSeen) {
    TableUser user("\tA\n1\t1", RowHeads::Times);
    CountingModel counting;
    counting.setSourceModel(user.View.model());
    user.View.setModel(&counting);
    user.Table = LargeTable();
    user.View.Show(user.Table);
    (void)user.View.grab();
    EXPECT_GT(counting.Reads, 0);
    EXPECT_LT(counting.Reads, kFew);
    EXPECT_EQ(user.View.model()->rowCount(), static_cast<int>(kRows) + 1);

    user.View.verticalScrollBar()->setValue(user.View.verticalScrollBar()->maximum() / 2);
    user.GoTo(500000, 1);
    (void)user.View.grab();
    counting.Reads = 0;
    const int scrolled = user.View.verticalScrollBar()->value();
    TableUser::Type("12");
    (void)user.View.grab();
    EXPECT_LT(counting.Reads, kFew);
    EXPECT_EQ(user.Table.Text(500000, 1), "12");
    EXPECT_EQ(user.View.verticalScrollBar()->value(), scrolled);
    TableUser::Press(Qt::Key_Escape);
    counting.Reads = 0;
    TableUser::Press(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(user.Selected(), "500000,1 500000x1");
    EXPECT_LT(counting.Reads, kFew);
    user.View.setModel(counting.sourceModel());
}

TEST(LargeTable, KeepsPlaceAndSelectionWhenRowsComeAndGo) {
    TableUser user("\tA\n1\t1", RowHeads::Times);
    user.Table = LargeTable();
    user.View.Show(user.Table);
    user.Select(700, 0, 3, 2);
    user.View.scrollTo(user.View.currentIndex());
    const int scrolled = user.View.verticalScrollBar()->value();
    user.Table.RemoveRows(1000, kRows - 1000);
    user.View.Show(user.Table);
    EXPECT_EQ(user.Selected(), "700,0 3x2");
    EXPECT_EQ(user.View.currentIndex(), user.View.model()->index(700, 0));
    EXPECT_EQ(user.View.verticalScrollBar()->value(), scrolled);
    user.Table.RemoveRows(10, 990);
    user.View.Show(user.Table);
    EXPECT_EQ(user.View.model()->rowCount(), 11);
    EXPECT_TRUE(user.View.currentIndex().isValid());
}

} // namespace
} // namespace designer::test
