// SPDX-License-Identifier: LGPL-3.0-or-later
// What ./listen looks at: a table and a chart, which gets a sample each tenth of a second.
#include "EditableTableView.h"
#include "UpdatablePlot.h"

#include <QApplication>
#include <QStandardItemModel>
#include <QTimer>
#include <QVBoxLayout>

namespace {

class Meter : public QObject
{
    Q_OBJECT

public:
    explicit Meter(UpdatablePlot *fed)
        : chart(fed)
    {
        startTimer(100);
    }

protected:
    void timerEvent(QTimerEvent *) override
    {
        chart->updateData(++value);
    }

private:
    UpdatablePlot *chart;
    int value = 5000;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName("shownwidgets");
    QStandardItemModel jobs(1, 3);
    jobs.setData(jobs.index(0, 0), "Photos");
    jobs.setData(jobs.index(0, 1), "1");
    jobs.setData(jobs.index(0, 1), "Verify, checked", Qt::AccessibleTextRole);

    QWidget window;
    QVBoxLayout *layout = new QVBoxLayout(&window);
    EditableTableView *table = new EditableTableView;
    table->setAccessibleName("Backups");
    table->setColumns(QStringList() << "editbox"
                                    << "checkbox:Verify"
                                    << "button:Run");
    table->setModel(&jobs);
    layout->addWidget(table);
    UpdatablePlot *chart = new UpdatablePlot;
    chart->setAccessibleName("Throughput");
    chart->setAccessibleDescription("Bytes in each second");
    layout->addWidget(chart);
    const Meter meter(chart);
    window.show();
    QTimer::singleShot(60000, &application, SLOT(quit()));
    return application.exec();
}

#include "shownwidgets.moc"
