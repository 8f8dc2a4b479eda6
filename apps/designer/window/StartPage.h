#pragma once

#include <QListWidget>
#include <QWidget>

class QLabel;

namespace designer {

class KindTiles;

/// What a window shows before it has a document: the kinds to start from as pictures, and what was open last.
class StartPage : public QWidget {
    Q_OBJECT

public:
    explicit StartPage(QWidget* parent = nullptr);

    /// As the settings have them now.
    void ShowRecentFiles();

Q_SIGNALS:
    /// As documents call it.
    void KindChosen(QString kind);
    void FileChosen(QString file);
    void OpenWanted();

private:
    KindTiles* m_kinds;
    QListWidget* m_files;
    QLabel* m_filesTitle;
};

} // namespace designer
