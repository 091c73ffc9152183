// SPDX-License-Identifier: LGPL-3.0-or-later
// Lists two pages in German, and returns what went wrong.
#include <FileListTableView.h>

#include <QApplication>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTranslator>

class Files : public QStandardItemModel
{
    Q_OBJECT

public:
    Files()
        : QStandardItemModel(0, 5)
    {
    }

public Q_SLOTS:
    void LoadItems()
    {
        insertRow(rowCount() - 1);
        emit pageLoaded(1, rowCount() > 2);
    }

Q_SIGNALS:
    void pageLoaded(qint64 count, bool completed);
    void dataChanged();
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QTranslator translator;
    if (!translator.load("tessaline_de", TESSALINE_TRANSLATIONS)) {
        return 1;
    }
    QApplication::installTranslator(&translator);

    Files files;
    FileListTableView list;
    list.setModel(&files);
    list.show();
    list.StartLoadingData();
    QPushButton *next = qobject_cast<QPushButton *>(list.indexWidget(files.index(1, 0)));
    if (next == nullptr || next->text() != QLatin1String("Weiter >>")) {
        return 2;
    }
    next->click();
    return files.rowCount() == 2 ? 0 : 3;
}

#include "filelist.moc"
