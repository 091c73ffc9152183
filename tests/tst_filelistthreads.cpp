// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JoinedThread.h"
#include "PageThread.h"
#include "ShownList.h"
#include "TestCase.h"

#include <mutex>

namespace {

const int pageCount = 20;
const int rowsOfPage = 30;

} // namespace

/// A model that lives in a thread of its own, where it is asked for pages and announces them. Its
/// rows go in where the view reads them, as it must be: ahead of the announcement, in the same
/// queue.
class ThreadedModel : public QStandardItemModel
{
    Q_OBJECT

public:
    ThreadedModel()
        : QStandardItemModel(0, 5)
        , pagesRead(0)
        , requests(0)
        , requestedIn(nullptr)
    {
    }

    QThread *threadOfRequests()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return requestedIn;
    }

    int requestCount()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return requests;
    }

    void insertPage()
    {
        const QStringList names = takePage();
        QList<QStandardItem *> rows;
        for (const QString &name : names) {
            rows.append(new QStandardItem(name));
        }
        invisibleRootItem()->insertRows(rowCount() - 1, rows);
    }

public Q_SLOTS:
    void LoadItems()
    {
        readPage();
        emit pageRead();
        emit pageLoaded(rowsOfPage, pagesRead == pageCount);
    }

    void startOver()
    {
        pagesRead = 0;
        emit dataChanged();
    }

Q_SIGNALS:
    void pageRead();
    void pageLoaded(qint64 count, bool completed);
    void dataChanged();

private:
    // The lock, which the tools see, is what makes a page the other thread's.
    void readPage()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        requestedIn = QThread::currentThread();
        ++requests;
        for (int i = 0; i < rowsOfPage; ++i) {
            page.append(QString::number(pagesRead * rowsOfPage + i));
        }
        ++pagesRead;
    }

    QStringList takePage()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        const QStringList taken = page;
        page.clear();
        return taken;
    }

    std::mutex mutex;
    QStringList page;
    int pagesRead;
    int requests;
    QThread *requestedIn;
};

/// Inserts, in the view's thread, what the model has read in its own.
class Inserter : public QObject
{
    Q_OBJECT

public:
    explicit Inserter(ThreadedModel *threadedModel)
        : model(threadedModel)
    {
        connect(model, SIGNAL(pageRead()), SLOT(insert()));
    }

public Q_SLOTS:
    void insert()
    {
        model->insertPage();
    }

private:
    ThreadedModel *model;
};

namespace {

/// A shown list whose model lives in a thread that is running.
struct ThreadedList
{
    ThreadedList()
        : inserter(&model)
    {
        view.setModel(&model);
        showWindow(&view, 600, 400);
        model.moveToThread(&thread);
        thread.start();
    }

    ~ThreadedList()
    {
        thread.quit();
        thread.join();
    }

    QString label() const
    {
        const QWidget *button = view.indexWidget(model.index(model.rowCount() - 1, 0));
        const QPushButton *next = qobject_cast<const QPushButton *>(button);
        return next ? next->text() : QString("none");
    }

    // Does not click the header, which would sort.
    void useMeanwhile()
    {
        view.resize(view.width() + 3, view.height());
        compat::grab(&view);
        QTest::keyClick(&view, Qt::Key_PageDown);
    }

    void next()
    {
        view.scrollToBottom();
        QTest::mouseClick(view.indexWidget(model.index(model.rowCount() - 1, 0)), Qt::LeftButton);
    }

    JoinedThread thread;
    ThreadedModel model;
    Inserter inserter;
    FileListTableView view;
};

QString numbers(int count)
{
    QStringList parts;
    for (int i = 0; i < count; ++i) {
        parts.append(QString::number(i));
    }
    return parts.join(",");
}

} // namespace

/// A list whose pages are read in another thread, while the user goes on using it.
class FileListThreadsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void asksForAPageInTheModelsThread();
    void listsAllPagesInOrder();
    void listsAnotherSession();
    void takesAPageFromAnotherThread();
    void takesASessionFromAnotherThread();
};

void FileListThreadsTest::asksForAPageInTheModelsThread()
{
    ThreadedList list;

    list.view.StartLoadingData();

    QTRY_COMPARE(list.label(), QString("Next >>"));
    QVERIFY(list.model.threadOfRequests() == &list.thread);
    QCOMPARE(list.model.rowCount(), rowsOfPage + 1);
}

void FileListThreadsTest::listsAllPagesInOrder()
{
    ThreadedList list;
    list.view.StartLoadingData();

    for (int page = 1; page < pageCount; ++page) {
        list.useMeanwhile();
        QTRY_COMPARE(list.label(), QString("Next >>"));
        QCOMPARE(list.model.rowCount(), page * rowsOfPage + 1);
        list.next();
    }

    QTRY_COMPARE(list.label(), QString("none"));
    QCOMPARE(texts(list.model, 0), numbers(pageCount * rowsOfPage));
}

void FileListThreadsTest::listsAnotherSession()
{
    ThreadedList list;
    list.view.StartLoadingData();
    QTRY_COMPARE(list.label(), QString("Next >>"));

    QMetaObject::invokeMethod(&list.model, "startOver");

    QTRY_COMPARE(list.model.requestCount(), 2);
    QTRY_COMPARE(list.label(), QString("Next >>"));
    QCOMPARE(list.model.rowCount(), rowsOfPage + 1);
    QCOMPARE(list.model.index(0, 0).data().toString(), QString("0"));
}

void FileListThreadsTest::takesAPageFromAnotherThread()
{
    PagedModel model;
    FileListTableView view;
    view.setModel(&model);
    view.StartLoadingData();
    PageThread loader(&model, false);

    loader.start();
    QVERIFY(loader.join());

    QCOMPARE(labelOfButton(view), QString("loading..."));
    QTRY_COMPARE(labelOfButton(view), QString("none"));
}

void FileListThreadsTest::takesASessionFromAnotherThread()
{
    PagedModel model;
    FileListTableView view;
    view.setModel(&model);
    PageThread loader(&model, true);

    loader.start();
    QVERIFY(loader.join());

    QTRY_COMPARE(model.requests, 1);
    QCOMPARE(labelOfButton(view), QString("loading..."));
}

TESSALINE_TEST_MAIN(FileListThreadsTest)
#include "tst_filelistthreads.moc"
