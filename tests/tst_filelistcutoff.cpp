// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ShownList.h"
#include "TestCase.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

/// Counts the events that an application posts to its list, and the insertions it learns of.
class PostedList : public FileListTableView
{
public:
    void rowsInserted(const QModelIndex &parent, int start, int end) override
    {
        ++insertions;
        FileListTableView::rowsInserted(parent, start, end);
    }

    int insertions = 0;
    int events = 0;

protected:
    void customEvent(QEvent *) override
    {
        ++events;
    }
};

} // namespace

/// A bystander that takes calls.
class Bystander : public QObject
{
    Q_OBJECT

public:
    int calls = 0;

public Q_SLOTS:
    void call()
    {
        ++calls;
    }
};

/// What is cut off with a model that is taken away or replaced, and what is not.
class FileListCutOffTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void waitsForAPageAfterItsModelWasTakenAway();
    void waitsForAPageWhenItsModelComesBack();
    void followsTheRowsOfAModelThatWasTakenAway();
    void tellsTheApplicationOfRequestsToTheNextModel();
    void leavesCallsQueuedThatAreForOthers_data();
    void leavesCallsQueuedThatAreForOthers();
    void leavesEventsQueuedThatAreNoCalls();
    void putsOffARequestThatWasQueuedUntilTheNextModelIsThere();
    void putsOffARequestThatWasQueuedWhileAPageWasOnItsWay();
    void leavesTheApplicationsOwnConnections_data();
    void leavesTheApplicationsOwnConnections();
};

void FileListCutOffTest::waitsForAPageAfterItsModelWasTakenAway()
{
    List list;
    list.click();
    QSignalSpy spy(&list.view, SIGNAL(requestItems()));

    list.view.setModel(nullptr);
    list.click();
    list.view.StartLoadingData();

    QCOMPARE(spy.count(), 0);
    QCOMPARE(list.paging(), QString("0 loading..."));
}

void FileListCutOffTest::waitsForAPageWhenItsModelComesBack()
{
    List list;
    list.click();

    list.view.setModel(nullptr);
    list.view.setModel(&list.model);
    list.view.StartLoadingData();

    QCOMPARE(list.model.requests, 1);
    list.model.announce(0, false);
    list.view.StartLoadingData();
    QCOMPARE(list.model.requests, 2);
}

void FileListCutOffTest::followsTheRowsOfAModelThatWasTakenAway()
{
    PagedModel model;
    PostedList view;
    view.setModel(&model);
    view.setModel(nullptr);
    view.insertions = 0;

    model.insertPage(2);

    QCOMPARE(view.insertions, 1);
    QVERIFY(view.indexWidget(model.index(2, 0)));
}

void FileListCutOffTest::tellsTheApplicationOfRequestsToTheNextModel()
{
    List list;
    PagedModel second;
    QSignalSpy spy(&list.view, SIGNAL(requestItems()));

    list.view.setModel(&second);
    list.view.StartLoadingData();

    QCOMPARE(spy.count(), 1);
    QCOMPARE(second.requests, 1);
}

void FileListCutOffTest::leavesCallsQueuedThatAreForOthers_data()
{
    QTest::addColumn<bool>("isTakenAway");

    QTest::newRow("replaced") << false;
    QTest::newRow("taken away") << true;
}

void FileListCutOffTest::leavesCallsQueuedThatAreForOthers()
{
    QFETCH(bool, isTakenAway);
    List list;
    PagedModel second;
    Bystander other;
    QMetaObject::invokeMethod(&other, "call", Qt::QueuedConnection);

    list.view.setModel(isTakenAway ? nullptr : &second);

    QCOMPARE(other.calls, 0);
    QCoreApplication::processEvents();
    QCOMPARE(other.calls, 1);
}

void FileListCutOffTest::leavesEventsQueuedThatAreNoCalls()
{
    PagedModel model;
    PagedModel second;
    PostedList view;
    view.setModel(&model);
    QCoreApplication::postEvent(&view, new QEvent(QEvent::User));

    view.setModel(&second);

    QCOMPARE(view.events, 0);
    QCoreApplication::processEvents();
    QCOMPARE(view.events, 1);
}

void FileListCutOffTest::putsOffARequestThatWasQueuedUntilTheNextModelIsThere()
{
    List list;
    PagedModel second;
    QSignalSpy spy(&list.view, SIGNAL(requestItems()));
    QMetaObject::invokeMethod(&list.view, "StartLoadingData", Qt::QueuedConnection);

    list.view.setModel(&second);

    QCOMPARE(spy.count(), 0);
    QTRY_COMPARE(second.requests, 1);
    QCOMPARE(list.model.requests, 0);
}

void FileListCutOffTest::putsOffARequestThatWasQueuedWhileAPageWasOnItsWay()
{
    List list;
    PagedModel second;
    list.click();
    QMetaObject::invokeMethod(&list.view, "StartLoadingData", Qt::QueuedConnection);

    list.view.setModel(&second);

    QTRY_COMPARE(second.requests, 1);
    QCOMPARE(list.model.requests, 1);
}

void FileListCutOffTest::leavesTheApplicationsOwnConnections_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<bool>("isTakenAway");

    const QByteArray session(SIGNAL(dataChanged()));
    const QByteArray page(SIGNAL(pageLoaded(qint64,bool)));
    QTest::newRow("session, replaced") << session << false;
    QTest::newRow("session, taken away") << session << true;
    QTest::newRow("page, replaced") << page << false;
    QTest::newRow("page, taken away") << page << true;
}

void FileListCutOffTest::leavesTheApplicationsOwnConnections()
{
    QFETCH(QByteArray, signal);
    QFETCH(bool, isTakenAway);
    List list;
    PagedModel second;
    QObject::connect(&list.model, signal.constData(), &list.view, SLOT(hide()));

    list.view.setModel(isTakenAway ? nullptr : &second);

    QVERIFY(list.view.isVisible());
    list.model.announce(0, false);
    list.model.changeSession();
    QVERIFY(!list.view.isVisible());
}

TESSALINE_TEST_MAIN(FileListCutOffTest)
#include "tst_filelistcutoff.moc"
