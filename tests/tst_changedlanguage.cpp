// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CheckItemDelegate.h"
#include "ShownList.h"
#include "TestCase.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QImage>
#include <QPainter>

namespace {

/// Translates for as long as it lives.
class German : public compat::Translator
{
public:
    German()
    {
        QCoreApplication::installTranslator(this);
    }

    ~German() override
    {
        QCoreApplication::removeTranslator(this);
    }

protected:
    QString find(const QByteArray &context, const QByteArray &source) const override
    {
        if (context == "CheckItemDelegate") {
            return source == "Verify" ? QString("Nachsehen") : QString();
        }
        const bool isLabel = context == "FileListTableView" && source == "Common::Next";
        const bool isNote = context == "FileListTableView" && source == "loading...";
        return isLabel ? QString("Weiter") : isNote ? QString("wird geladen") : QString();
    }
};

/// A check cell's picture.
QImage painted(const QAbstractItemDelegate &delegate)
{
    QStandardItemModel model(1, 1);
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 120, 24);
    QImage image(120, 24, QImage::Format_RGB32);
    image.fill(0xff00ff);
    QPainter painter(&image);
    delegate.paint(&painter, option, model.index(0, 0));
    return image;
}

QString editorText(const QAbstractItemDelegate &delegate)
{
    QWidget parent;
    QStandardItemModel model(1, 1);
    const QWidget *editor
        = delegate.createEditor(&parent, QStyleOptionViewItem(), model.index(0, 0));
    return qobject_cast<const QCheckBox *>(editor)->text();
}

} // namespace

/// Texts are in the language of the moment at which they are shown.
class ChangedLanguageTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void paintsACheckCellInTheLanguageOfTheMoment();
    void opensACheckBoxInTheLanguageOfTheMoment();
    void labelsThePagingButtonInTheLanguageOfTheMoment();
    void tellsOfAPageInTheLanguageOfTheMoment();
};

void ChangedLanguageTest::paintsACheckCellInTheLanguageOfTheMoment()
{
    const CheckItemDelegate delegate("Verify");
    const QImage english = painted(delegate);
    {
        const German german;
        QVERIFY(painted(delegate) != english);
    }

    QCOMPARE(painted(delegate), english);
}

void ChangedLanguageTest::opensACheckBoxInTheLanguageOfTheMoment()
{
    const CheckItemDelegate delegate("Verify");
    {
        const German german;
        QCOMPARE(editorText(delegate), QString("Nachsehen"));
    }

    QCOMPARE(editorText(delegate), QString("Verify"));
}

void ChangedLanguageTest::labelsThePagingButtonInTheLanguageOfTheMoment()
{
    List list;
    {
        const German german;
        list.view.FinishLoadingData(0, false);
        QCOMPARE(list.paging(), QString("0 Weiter >>"));
    }

    list.view.FinishLoadingData(0, false);

    QCOMPARE(list.paging(), QString("0 Next >>"));
}

void ChangedLanguageTest::tellsOfAPageInTheLanguageOfTheMoment()
{
    List list;
    {
        const German german;
        list.click();
        QCOMPARE(list.paging(), QString("0 wird geladen"));
    }
    list.model.announce(0, false);

    list.click();

    QCOMPARE(list.paging(), QString("0 loading..."));
}

TESSALINE_TEST_MAIN(ChangedLanguageTest)
#include "tst_changedlanguage.moc"
