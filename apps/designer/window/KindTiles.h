#pragma once

#include <QListWidget>

namespace designer {

/// The kinds of charts as pictures of their examples, as large as there is room for, in the middle. An
/// item's user data are the kind's name as documents call it.
class KindTiles : public QListWidget {
    Q_OBJECT

public:
    explicit KindTiles(QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Fill();
    void Arrange();
};

} // namespace designer
