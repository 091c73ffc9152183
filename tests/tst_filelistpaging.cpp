// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"
#include "ShownList.h"
#include "TestCase.h"

#include <QDialog>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

class GermanPaging : public compat::Translator
{
protected:
    QString find(const QByteArray &context, const QByteArray &source) const override
    {
        if (context != "FileListTableView") {
            return QString();
        }
        return source == "Common::Next" ? QString("Weiter")
            : source == "loading..."    ? QString("wird geladen")
                                        : QString();
    }
};

class OneTranslation : public compat::Translator
{
public:
    OneTranslation(const QByteArray &sourceText, const QString &translatedText)
        : known(sourceText)
        , translation(translatedText)
    {
    }

protected:
    QString find(const QByteArray &context, const QByteArray &source) const override
    {
        return context == "FileListTableView" && source == known ? translation : QString();
    }

private:
    const QByteArray known;
    const QString translation;
};

} // namespace

/// How a file list asks for pages, and what its button says meanwhile.
class FileListPagingTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void asksForNoPageByItself();
    void asksForAPageOnceWhileOneIsOnItsWay();
    void goesFromPageToPage();
    void ignoresTheCountOfAPage_data();
    void ignoresTheCountOfAPage();
    void removesButtonAndRowAfterTheLastPage();
    void labelsTheButtonEvenWhenItGoes();
    void translatesItsLabels();
    void translatesTheKeyOfItsLabelOnly_data();
    void translatesTheKeyOfItsLabelOnly();
    void takesAnEmptyTranslationOfItsLabel();
    void keepsTheFocusOnItsButtonWhileAPageIsOnItsWay();
    void asksForAPageByEnterInADialog();
    void startsAnewWhenTheSessionChanges();
    void asksForNoSecondPageWhenTheSessionChangesWhileLoading();
    void startsAnewAfterTheLastPage();
    void acceptsAnAnswerAtOnce();
    void goesOnAfterAnAnswerAtOnce();

public Q_SLOTS:
    void deliverAPage();

private:
    PagedModel *asked;
};

void FileListPagingTest::deliverAPage()
{
    asked->deliver(2, false);
}

void FileListPagingTest::asksForNoPageByItself()
{
    List list;

    QCoreApplication::processEvents();

    QCOMPARE(list.model.requests, 0);
}

void FileListPagingTest::asksForAPageOnceWhileOneIsOnItsWay()
{
    List list;
    QSignalSpy spy(&list.view, SIGNAL(requestItems()));

    list.click();
    list.click();

    QCOMPARE(spy.count(), 1);
    QCOMPARE(list.model.requests, 1);
    QCOMPARE(list.paging(), QString("0 loading..."));
}

void FileListPagingTest::goesFromPageToPage()
{
    List list;
    list.click();
    list.model.deliver(3, false);
    QCOMPARE(list.paging(), QString("3 Next >>"));
    QCoreApplication::processEvents();

    list.click();
    QCOMPARE(list.paging(), QString("3 loading..."));
    list.model.deliver(2, false);

    QCOMPARE(list.paging(), QString("5 Next >>"));
    QCOMPARE(texts(list.model, 0), QString("file0,file1,file2,file3,file4,"));
    QCOMPARE(list.model.requests, 2);
}

void FileListPagingTest::ignoresTheCountOfAPage_data()
{
    QTest::addColumn<qint64>("count");

    QTest::newRow("right") << qint64(2);
    QTest::newRow("none") << qint64(0);
    QTest::newRow("negative") << qint64(-1);
    QTest::newRow("largest") << Q_INT64_C(9223372036854775807);
}

void FileListPagingTest::ignoresTheCountOfAPage()
{
    QFETCH(qint64, count);
    List list;
    list.view.StartLoadingData();
    list.model.insertPage(2);

    list.model.announce(count, false);

    QCOMPARE(list.paging(), QString("2 Next >>"));
}

void FileListPagingTest::removesButtonAndRowAfterTheLastPage()
{
    List list;
    const QPointer<CellButton> button = list.button();
    list.click();

    list.model.deliver(2, true);

    QVERIFY(button.isNull()); // at once
    QCOMPARE(list.paging(), QString("none"));
    QCOMPARE(texts(list.model, 0), QString("file0,file1"));
}

void FileListPagingTest::labelsTheButtonEvenWhenItGoes()
{
    List list;
    list.view.StartLoadingData();
    list.view.setModel(nullptr); // keeps the button

    list.view.FinishLoadingData(0, true);

    QCOMPARE(list.paging(), QString("0 Next >>"));
}

void FileListPagingTest::translatesItsLabels()
{
    List list;
    GermanPaging german;
    QCoreApplication::installTranslator(&german);

    list.view.StartLoadingData();
    const QString loading = list.paging();
    list.model.deliver(1, false);
    const QString next = list.paging();

    QCoreApplication::removeTranslator(&german);
    QCOMPARE(loading, QString("0 wird geladen"));
    QCOMPARE(next, QString("1 Weiter >>"));
}

void FileListPagingTest::startsAnewWhenTheSessionChanges()
{
    List list;
    list.fill(3);
    const QPointer<CellButton> old = list.button();

    list.model.changeSession();

    QVERIFY(old.isNull());
    QCOMPARE(list.model.rowCount(), 1);
    QCOMPARE(list.paging(), QString("0 loading..."));
    QCOMPARE(list.model.requests, 2);
}

void FileListPagingTest::asksForNoSecondPageWhenTheSessionChangesWhileLoading()
{
    List list;
    list.view.StartLoadingData();
    list.model.insertPage(3);

    list.model.changeSession();

    QCOMPARE(list.model.requests, 1);
    QCOMPARE(list.paging(), QString("0 ")); // a new button without a text
    list.model.deliver(1, false);
    QCOMPARE(list.paging(), QString("1 Next >>"));
}

void FileListPagingTest::startsAnewAfterTheLastPage()
{
    List list;
    list.view.StartLoadingData();
    list.model.deliver(3, true);

    list.model.changeSession();

    QCOMPARE(list.paging(), QString("0 loading..."));
    QCOMPARE(list.model.requests, 2);
}

void FileListPagingTest::acceptsAnAnswerAtOnce()
{
    List list;
    list.model.answersAtOnce = 4;

    list.click(); // the button goes within its own click

    QCOMPARE(list.paging(), QString("none"));
    QCOMPARE(list.model.rowCount(), 4);
}

void FileListPagingTest::goesOnAfterAnAnswerAtOnce()
{
    List list;
    asked = &list.model;
    connect(&list.view, SIGNAL(requestItems()), SLOT(deliverAPage()));

    list.click();
    QCOMPARE(list.paging(), QString("2 Next >>"));
    QCoreApplication::processEvents();
    list.click();

    QCOMPARE(list.paging(), QString("4 Next >>"));
}

void FileListPagingTest::translatesTheKeyOfItsLabelOnly_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QString>("paging");

    const QByteArray key("Common::Next");
    QTest::newRow("with a shortcut") << key << "&Weiter"
                                     << "1 &Weiter >>";
    QTest::newRow("the plain word") << QByteArray("Next") << "Weiter"
                                    << "1 Next >>";
}

void FileListPagingTest::translatesTheKeyOfItsLabelOnly()
{
    QFETCH(QByteArray, source);
    QFETCH(QString, translation);
    List list;
    OneTranslation translator(source, translation);
    QCoreApplication::installTranslator(&translator);

    list.model.deliver(1, false);

    QCoreApplication::removeTranslator(&translator);
    QTEST(list.paging(), "paging");
}

void FileListPagingTest::takesAnEmptyTranslationOfItsLabel()
{
    List list;
    OneTranslation translator("Common::Next", "");
    QCoreApplication::installTranslator(&translator);

    list.model.deliver(1, false);

    const bool counts = FileListTableView::tr("Common::Next").isEmpty(); // since Qt 5
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(list.paging(), QString(counts ? "1  >>" : "1 Next >>"));
}

void FileListPagingTest::keepsTheFocusOnItsButtonWhileAPageIsOnItsWay()
{
    List list;
    list.button()->setFocus();

    QTest::keyClick(list.button(), Qt::Key_Space);

    QCOMPARE(list.paging(), QString("0 loading..."));
    QVERIFY(list.button()->hasFocus());
}

void FileListPagingTest::asksForAPageByEnterInADialog()
{
    PagedModel model;
    QDialog dialog;
    FileListTableView *view = new FileListTableView;
    QPushButton *close = new QPushButton("Close");
    close->setDefault(true);
    QVBoxLayout *layout = new QVBoxLayout(&dialog);
    layout->addWidget(view);
    layout->addWidget(close);
    view->setModel(&model);
    showWindow(&dialog, 600, 400);
    QSignalSpy spy(close, SIGNAL(clicked()));
    view->indexWidget(model.index(0, 0))->setFocus();

    QTest::keyClick(view->indexWidget(model.index(0, 0)), Qt::Key_Return);

    QCOMPARE(model.requests, 1);
    QCOMPARE(spy.count(), 0);
}

TESSALINE_TEST_MAIN(FileListPagingTest)
#include "tst_filelistpaging.moc"
