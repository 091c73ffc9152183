// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ShownList.h"
#include "TestCase.h"

#include <QPointer>
#include <QScopedPointer>

/// What an application's slot does to a list while rows of its model come and go.
class FileListTurnsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void asksForAPageThatIsWantedWhenTheButtonComes();
    void asksForAPageThatIsWantedWhenTheButtonGoes();
    void asksOnceWhenAPageIsWantedWhileTheSessionChanges();
    void startsAnewWhenTheSessionChangesAsTheButtonGoes();
    void hasOneButtonWhenTheSessionChangesWhileItChanges();
    void sparesTheRowsOfAModelThatComesWhileTheSessionChanges_data();
    void sparesTheRowsOfAModelThatComesWhileTheSessionChanges();
    void asksNobodyWhenItsModelIsTakenAwayWhileTheSessionChanges_data();
    void asksNobodyWhenItsModelIsTakenAwayWhileTheSessionChanges();
    void canBeDeletedWhileTheSessionChanges_data();
    void canBeDeletedWhileTheSessionChanges();
    void canBeDeletedWhenTheButtonGoes();

public Q_SLOTS:
    void wantAPage();
    void changeSession();
    void setNextModel();
    void takeModelAway();
    void deleteList();

private:
    /// Has a slot act once, when the model's signal comes for the n-th time.
    void act(List *list, const char *signal, const char *slot, int n = 1);
    bool isTime();

    QPointer<FileListTableView> view;
    QPointer<PagedModel> next;
    int signalsToCome = 0;
};

void FileListTurnsTest::act(List *list, const char *signal, const char *slot, int n)
{
    view = &list->view;
    signalsToCome = n;
    connect(&list->model, signal, slot);
}

bool FileListTurnsTest::isTime()
{
    --signalsToCome;
    return signalsToCome == 0;
}

void FileListTurnsTest::wantAPage()
{
    if (isTime()) {
        view->StartLoadingData();
    }
}

void FileListTurnsTest::changeSession()
{
    if (isTime()) {
        view->SessionChanged();
    }
}

void FileListTurnsTest::setNextModel()
{
    if (isTime()) {
        view->setModel(next);
    }
}

void FileListTurnsTest::takeModelAway()
{
    if (isTime()) {
        view->setModel(nullptr);
    }
}

void FileListTurnsTest::deleteList()
{
    if (isTime()) {
        delete view;
    }
}

namespace {

/// The three turns of a change of the session, each with the signal that tells of it.
void addRowsForTheTurns()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<int>("n");

    QTest::newRow("the button goes") << QByteArray(SIGNAL(rowsRemoved(QModelIndex,int,int))) << 1;
    QTest::newRow("the rows go") << QByteArray(SIGNAL(rowsRemoved(QModelIndex,int,int))) << 2;
    QTest::newRow("a button comes") << QByteArray(SIGNAL(rowsInserted(QModelIndex,int,int))) << 1;
}

} // namespace

void FileListTurnsTest::asksForAPageThatIsWantedWhenTheButtonComes()
{
    List list;
    list.view.StartLoadingData();
    PagedModel other;
    view = &list.view;
    signalsToCome = 1;
    connect(&other, SIGNAL(rowsInserted(QModelIndex,int,int)), SLOT(wantAPage()));

    list.view.setModel(&other);

    QCOMPARE(other.requests, 1);
    list.view.StartLoadingData();
    QCOMPARE(other.requests, 1); // that page is on its way
}

void FileListTurnsTest::asksForAPageThatIsWantedWhenTheButtonGoes()
{
    List list;
    list.view.StartLoadingData();
    act(&list, SIGNAL(rowsRemoved(QModelIndex,int,int)), SLOT(wantAPage()));

    list.model.deliver(2, true);

    QCOMPARE(list.model.requests, 2);
    list.view.StartLoadingData();
    QCOMPARE(list.model.requests, 2); // that page is on its way
}

void FileListTurnsTest::asksOnceWhenAPageIsWantedWhileTheSessionChanges()
{
    List list;
    list.fill(3);
    act(&list, SIGNAL(rowsRemoved(QModelIndex,int,int)), SLOT(wantAPage()));

    list.model.changeSession();

    QCOMPARE(list.model.requests, 2);
    QCOMPARE(list.paging(), QString("0 ")); // it came after the request
    list.model.deliver(1, false);
    QCOMPARE(list.paging(), QString("1 Next >>"));
}

void FileListTurnsTest::startsAnewWhenTheSessionChangesAsTheButtonGoes()
{
    List list;
    list.view.StartLoadingData();
    act(&list, SIGNAL(rowsRemoved(QModelIndex,int,int)), SLOT(changeSession()));

    list.model.deliver(2, true);

    QCOMPARE(list.model.rowCount(), 1);
    QCOMPARE(list.paging(), QString("0 loading..."));
    QCOMPARE(list.model.requests, 2);
}

void FileListTurnsTest::hasOneButtonWhenTheSessionChangesWhileItChanges()
{
    List list;
    list.fill(3);
    act(&list, SIGNAL(rowsRemoved(QModelIndex,int,int)), SLOT(changeSession()));

    list.model.changeSession();

    QCOMPARE(list.model.rowCount(), 1);
    QCOMPARE(buttonCount(list.view), 1);
    QCOMPARE(list.model.requests, 2);
    list.model.deliver(1, false);
    QCOMPARE(list.paging(), QString("1 Next >>"));
}

void FileListTurnsTest::sparesTheRowsOfAModelThatComesWhileTheSessionChanges_data()
{
    addRowsForTheTurns();
}

void FileListTurnsTest::sparesTheRowsOfAModelThatComesWhileTheSessionChanges()
{
    QFETCH(QByteArray, signal);
    QFETCH(int, n);
    List list;
    list.fill(3);
    PagedModel other;
    other.insertPage(2);
    next = &other;
    act(&list, signal.constData(), SLOT(setNextModel()), n);

    list.model.changeSession();

    QCOMPARE(texts(other, 0), QString("file0,file1,"));
    QCOMPARE(other.requests, 0);
    QCOMPARE(list.model.requests, 1);
}

void FileListTurnsTest::asksNobodyWhenItsModelIsTakenAwayWhileTheSessionChanges_data()
{
    addRowsForTheTurns();
}

void FileListTurnsTest::asksNobodyWhenItsModelIsTakenAwayWhileTheSessionChanges()
{
    QFETCH(QByteArray, signal);
    QFETCH(int, n);
    List list;
    list.fill(3);
    QSignalSpy spy(&list.view, SIGNAL(requestItems()));
    act(&list, signal.constData(), SLOT(takeModelAway()), n);

    list.model.changeSession();

    QCOMPARE(spy.count(), 0);
    use(&list.view);
}

namespace {

/// A list that is deleted before its model.
struct ListToDelete : PagedModel
{
    ListToDelete()
        : view(new FileListTableView)
    {
        view->setModel(this);
        view->StartLoadingData();
        insertPage(3);
    }

    ~ListToDelete() override
    {
        delete view;
    }

    const QPointer<FileListTableView> view;
};

} // namespace

void FileListTurnsTest::canBeDeletedWhileTheSessionChanges_data()
{
    addRowsForTheTurns();
}

void FileListTurnsTest::canBeDeletedWhileTheSessionChanges()
{
    QFETCH(QByteArray, signal);
    QFETCH(int, n);
    ListToDelete model;
    view = model.view;
    signalsToCome = n;
    connect(&model, signal.constData(), SLOT(deleteList()));

    model.changeSession();

    QVERIFY(!model.view);
    QCOMPARE(model.requests, 1); // the first
}

void FileListTurnsTest::canBeDeletedWhenTheButtonGoes()
{
    ListToDelete model;
    view = model.view;
    signalsToCome = 1;
    connect(&model, SIGNAL(rowsRemoved(QModelIndex,int,int)), SLOT(deleteList()));

    model.announce(3, true);

    QVERIFY(!model.view);
    QCOMPARE(model.rowCount(), 3);
}

TESSALINE_TEST_MAIN(FileListTurnsTest)
#include "tst_filelistturns.moc"
