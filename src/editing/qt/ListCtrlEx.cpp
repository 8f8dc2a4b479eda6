#include "editing/qt/ListCtrlEx.h"

#include "editing/CellSamples.h"
#include "editing/CellTexts.h"
#include "editing/ListRows.h"
#include "editing/qt/DialogUnits.h"
#include "editing/qt/QtValues.h"
#include "editing/qt/SurfacePainter.h"

#include <QAbstractTableModel>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

namespace millichart {

/// Shows the rows to the view.
class CListCtrlEx::Model final : public QAbstractTableModel {
public:
    explicit Model(CListCtrlEx& list) : m_list(list) {}

    /// Any change of rows, after which the view looks at all of them again.
    template <class Change> void Reset(Change change) {
        beginResetModel();
        change(Rows);
        endResetModel();
    }

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(Rows.Count());
    }

    int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(Rows.Columns().size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::AccessibleTextRole && ColumnOf(index).Kind == CellKind::Color) {
            return ToQColor(ToColorRef(ColorOfCell(CellAt(index)))).name();
        }
        const bool isText = role == Qt::DisplayRole || role == Qt::EditRole || role == Qt::AccessibleTextRole;
        return isText ? QVariant(ToQString(CellAt(index))) : QVariant();
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        return orientation == Qt::Horizontal && role == Qt::DisplayRole
                   ? QVariant(ToQString(Rows.Columns()[static_cast<std::size_t>(section)].Title))
                   : QAbstractTableModel::headerData(section, orientation, role);
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override {
        return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
    }

    bool setData(const QModelIndex& index, const QVariant& value, int) override {
        const std::string text = value.toString().toStdString();
        if (text == CellAt(index) || !Rows.SetCell(Row(index), Column(index), text)) {
            return false;
        }
        Q_EMIT dataChanged(index, index);
        m_list.TellChanged();
        return true;
    }

    const ListColumn& ColumnOf(const QModelIndex& index) const { return Rows.Columns()[Column(index)]; }

    const std::string& CellAt(const QModelIndex& index) const { return Rows.Cell(Row(index), Column(index)); }

    ListRows Rows;

private:
    static std::size_t Row(const QModelIndex& index) { return static_cast<std::size_t>(index.row()); }

    static std::size_t Column(const QModelIndex& index) { return static_cast<std::size_t>(index.column()); }

    CListCtrlEx& m_list;
};

/// Draws colours and lines as samples, and opens a list on a choice.
class CListCtrlEx::Delegate final : public QStyledItemDelegate {
public:
    explicit Delegate(CListCtrlEx& list) : QStyledItemDelegate(&list), m_list(list) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const CellKind kind = m_list.m_model->ColumnOf(index).Kind;
        if (kind != CellKind::Color && kind != CellKind::Line) {
            return QStyledItemDelegate::paint(painter, option, index);
        }
        PaintEmpty(*painter, option, index);
        PaintByEngine(*painter, option.rect, [&](penlode::IGraphicsEngine& engine) {
            const penlode::RectF box{0, 0, static_cast<float>(option.rect.width()),
                                     static_cast<float>(option.rect.height())};
            DrawCellSample(engine, box, kind, m_list.m_model->CellAt(index),
                           static_cast<float>(m_list.logicalDpiY()));
        });
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        const ListColumn& column = m_list.m_model->ColumnOf(index);
        if (column.Kind != CellKind::Choice) {
            return QStyledItemDelegate::createEditor(parent, option, index);
        }
        auto* choices = new QComboBox(parent);
        for (const std::string_view choice : column.Choices) {
            choices->addItem(ToQString(choice));
        }
        auto* delegate = const_cast<Delegate*>(this);
        connect(choices, &QComboBox::activated, delegate, [delegate, choices] {
            Q_EMIT delegate->commitData(choices);
            Q_EMIT delegate->closeEditor(choices);
        });
        return choices;
    }

    void setEditorData(QWidget* editor, const QModelIndex& index) const override {
        if (auto* choices = dynamic_cast<QComboBox*>(editor)) {
            choices->setCurrentIndex(choices->findText(index.data(Qt::EditRole).toString()));
        } else {
            QStyledItemDelegate::setEditorData(editor, index);
        }
    }

    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
        if (auto* choices = dynamic_cast<QComboBox*>(editor)) {
            model->setData(index, choices->currentText());
        } else {
            QStyledItemDelegate::setModelData(editor, model, index);
        }
    }

private:
    /// A cell's ground without its text.
    void PaintEmpty(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
        QStyleOptionViewItem empty = option;
        initStyleOption(&empty, index);
        empty.text.clear();
        empty.state.setFlag(QStyle::State_Selected, false); // on which a line might not be seen
        m_list.style()->drawControl(QStyle::CE_ItemViewItem, &empty, &painter, &m_list);
    }

    CListCtrlEx& m_list;
};

CListCtrlEx::CListCtrlEx(QWidget* parent) : QTableView(parent), m_model(std::make_unique<Model>(*this)) {
    setModel(m_model.get());
    setItemDelegate(new Delegate(*this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ContiguousSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed);
    setTabKeyNavigation(false);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    AddActions();
}

CListCtrlEx::~CListCtrlEx() {
    setModel(nullptr); // which goes before the view does
}

void CListCtrlEx::SetColumns(std::span<const ListColumn> columns) {
    m_model->Reset([&](ListRows& rows) { rows.SetColumns(columns); });
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const int width =
            DialogUnits(font()).PlaceOf({0, ControlKind::Label, "", 0, 0, columns[i].Width, 8}).width();
        setColumnWidth(static_cast<int>(i), width);
    }
}

void CListCtrlEx::SetRows(std::vector<ListRow> rows) {
    m_model->Reset([&](ListRows& shown) { shown.SetRows(std::move(rows)); });
}

const std::vector<ListRow>& CListCtrlEx::Rows() const {
    return m_model->Rows.Rows();
}

void CListCtrlEx::SelectRow(int row) {
    const QModelIndex first = m_model->index(row, 0); // not valid beyond the rows
    setCurrentIndex(first);
    if (!first.isValid()) {
        clearSelection();
    }
}

bool CListCtrlEx::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    if (!index.isValid() || (trigger & editTriggers()) == NoEditTriggers) {
        return QTableView::edit(index, trigger, event);
    }
    const auto edit = m_model->ColumnOf(index).EditInDialog;
    if (edit == nullptr) {
        return QTableView::edit(index, trigger, event);
    }
    std::string cell = m_model->CellAt(index);
    if (EditInDialog && EditInDialog(edit, cell)) {
        m_model->setData(index, ToQString(cell), Qt::EditRole);
    }
    return true;
}

void CListCtrlEx::keyPressEvent(QKeyEvent* event) {
    const bool opens = event->key() == Qt::Key_F2 && state() != EditingState;
    if (opens && currentIndex().isValid()) {
        edit(currentIndex(), EditKeyPressed, event);
    } else {
        QTableView::keyPressEvent(event);
    }
}

void CListCtrlEx::AddActions() {
    AddAction("添加(&A)", QKeySequence(Qt::Key_Insert), &CListCtrlEx::Add);
    AddAction("删除(&D)", QKeySequence(Qt::Key_Delete), &CListCtrlEx::Remove);
    AddAction("上移(&U)", QKeySequence(Qt::ALT | Qt::Key_Up), &CListCtrlEx::MoveUp);
    AddAction("下移(&N)", QKeySequence(Qt::ALT | Qt::Key_Down), &CListCtrlEx::MoveDown);
    AddAction("复制(&C)", QKeySequence::Copy, &CListCtrlEx::Copy);
    AddAction("粘贴(&P)", QKeySequence::Paste, &CListCtrlEx::Paste);
}

void CListCtrlEx::AddAction(const char* text, const QKeySequence& keys, void (CListCtrlEx::*act)()) {
    auto* action = new QAction(QString::fromUtf8(text), this);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, [this, act] { (this->*act)(); });
    addAction(action);
}

std::pair<std::size_t, std::size_t> CListCtrlEx::SelectedRows() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    int first = static_cast<int>(m_model->Rows.Count());
    for (const QModelIndex& row : rows) {
        first = std::min(first, row.row());
    }
    return {static_cast<std::size_t>(first), static_cast<std::size_t>(rows.size())};
}

void CListCtrlEx::GoTo(std::size_t row, int column) {
    const int last = static_cast<int>(m_model->Rows.Count()) - 1;
    setCurrentIndex(m_model->index(std::min(static_cast<int>(row), last), std::max(column, 0)));
    TellChanged();
}

void CListCtrlEx::TellChanged() {
    if (OnChanged) {
        OnChanged();
    }
}

/// Below the rows that are selected, or at the end.
void CListCtrlEx::Add() {
    const auto [first, count] = SelectedRows();
    m_model->Reset([at = first + count](ListRows& rows) { rows.Add(at); });
    GoTo(first + count, 0);
}

void CListCtrlEx::Remove() {
    const auto selected = SelectedRows();
    if (selected.second > 0) {
        m_model->Reset([selected](ListRows& rows) { rows.Remove(selected.first, selected.second); });
        GoTo(selected.first, 0);
    }
}

void CListCtrlEx::MoveUp() {
    Move(-1);
}

void CListCtrlEx::MoveDown() {
    Move(1);
}

void CListCtrlEx::Move(int step) {
    if (!currentIndex().isValid()) {
        return;
    }
    const int column = currentIndex().column();
    auto row = static_cast<std::size_t>(currentIndex().row());
    m_model->Reset([&](ListRows& rows) { row = rows.Move(row, step); });
    GoTo(row, column);
}

void CListCtrlEx::Copy() {
    const auto [first, count] = SelectedRows();
    if (count == 0) {
        return;
    }
    QApplication::clipboard()->setText(ToQString(m_model->Rows.Copied(first, count)));
}

/// From the current cell on.
void CListCtrlEx::Paste() {
    const std::string text = QApplication::clipboard()->text().toStdString();
    const int column = std::max(currentIndex().column(), 0);
    const std::size_t row =
        currentIndex().isValid() ? static_cast<std::size_t>(currentIndex().row()) : m_model->Rows.Count();
    m_model->Reset([&](ListRows& rows) { rows.Paste(row, static_cast<std::size_t>(column), text); });
    GoTo(row, column);
}

} // namespace millichart
