// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ButtonTable.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QPointer>

namespace {

/// Counts the events of a kind of its own that reach an object.
class Listener : public QObject
{
public:
    static QEvent::Type type()
    {
        return QEvent::User;
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        heard += event->type() == type();
        return false;
    }

    int heard = 0;
};

} // namespace

/// What is queued when a table makes a button: it is delivered, whomever it is for.
class OthersEventsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void deletesWhatWasToBeDeleted();
    void deletesATableThatWasToBeDeleted();
    void callsWhatWasToBeCalled();
    void callsTheTableAsItWasToBeCalled();
    void reachTheTableAndItsParts_data();
    void reachTheTableAndItsParts();
    void reachAButtonThatWasThereBefore();
    void layOutTheNewRow();

public Q_SLOTS:
    void noteCall();

private:
    int calls = 0;
};

void OthersEventsTest::noteCall()
{
    ++calls;
}

void OthersEventsTest::deletesWhatWasToBeDeleted()
{
    ButtonTable table;
    const QPointer<QObject> other = new QObject;
    other->deleteLater();

    table.model.insertRow(0);
    goThroughEvents();

    QVERIFY(!other);
}

void OthersEventsTest::deletesATableThatWasToBeDeleted()
{
    QStandardItemModel model(1, 1);
    const QPointer<EditableTableView> view = new EditableTableView;
    view->setColumns(QStringList("button"));
    view->setModel(&model);
    view->deleteLater();

    model.insertRow(0);
    goThroughEvents();

    QVERIFY(!view);
}

void OthersEventsTest::callsWhatWasToBeCalled()
{
    ButtonTable table;
    calls = 0;
    QMetaObject::invokeMethod(this, "noteCall", Qt::QueuedConnection);

    table.model.insertRow(0);
    QCoreApplication::processEvents();

    QCOMPARE(calls, 1);
}

void OthersEventsTest::callsTheTableAsItWasToBeCalled()
{
    ButtonTable table;
    QMetaObject::invokeMethod(&table.view, "setHorizontalHeaderClickable", Qt::QueuedConnection,
                              Q_ARG(bool, true));

    table.model.insertRow(0);
    QCoreApplication::processEvents();

    QVERIFY(compat::sectionsClickable(table.view.horizontalHeader()));
}

void OthersEventsTest::reachTheTableAndItsParts_data()
{
    QTest::addColumn<QString>("part");

    QTest::newRow("table") << "table";
    QTest::newRow("viewport") << "viewport";
    QTest::newRow("header") << "header";
    QTest::newRow("model") << "model";
}

void OthersEventsTest::reachTheTableAndItsParts()
{
    QFETCH(QString, part);
    ButtonTable table;
    QObject *receiver = &table.view;
    if (part == "viewport") {
        receiver = table.view.viewport();
    } else if (part == "header") {
        receiver = table.view.horizontalHeader();
    } else if (part == "model") {
        receiver = &table.model;
    }
    Listener listener;
    receiver->installEventFilter(&listener);
    QCoreApplication::postEvent(receiver, new QEvent(Listener::type()));

    table.model.insertRow(0);
    QCoreApplication::processEvents();

    QCOMPARE(listener.heard, 1);
}

void OthersEventsTest::reachAButtonThatWasThereBefore()
{
    ButtonTable table;
    Listener listener;
    table.button(1)->installEventFilter(&listener);
    QCoreApplication::postEvent(table.button(1), new QEvent(Listener::type()));

    table.model.insertRow(0);
    QCoreApplication::processEvents();

    QCOMPARE(listener.heard, 1);
}

void OthersEventsTest::layOutTheNewRow()
{
    ButtonTable table;
    showWindow(&table.view, 400, 300);

    table.model.insertRow(0);
    goThroughEvents();

    QVERIFY(table.button(0)->isVisible());
    QCOMPARE(table.button(0)->geometry(), table.view.visualRect(table.model.index(0, 1)));
}

TESSALINE_TEST_MAIN(OthersEventsTest)
#include "tst_othersevents.moc"
