// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CheckItemDelegate.h"
#include "EditableTableView.h"
#include "ShownList.h"
#include "TestCase.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QImage>
#include <QLocale>
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

/// Has numbers written as in Persian, for as long as it lives.
class PersianNumbers
{
public:
    PersianNumbers()
    {
        QLocale::setDefault(QLocale(QLocale::Persian, QLocale::Iran));
    }

    ~PersianNumbers()
    {
        QLocale::setDefault(previous);
    }

private:
    const QLocale previous;
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
    void describesAColumnByTheSameDigitsInEachLanguage_data();
    void describesAColumnByTheSameDigitsInEachLanguage();
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

void ChangedLanguageTest::describesAColumnByTheSameDigitsInEachLanguage_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<QString>("description");

    QTest::newRow("combobox") << "combobox"
                              << "EditableTableViewCombo column2";
    QTest::newRow("editcombobox") << "editcombobox"
                                  << "EditableTableViewCombo column2";
    QTest::newRow("editbox") << "editbox"
                             << "EditableTableViewEdit column2";
    QTest::newRow("passwordbox") << "passwordbox"
                                 << "EditableTableViewPassword column2";
    QTest::newRow("checkbox") << "checkbox"
                              << "EditableTableViewCheckBox column2";
    QTest::newRow("button") << "button"
                            << "EditableTableViewButton column2";
}

// Programs find a widget by its description.
void ChangedLanguageTest::describesAColumnByTheSameDigitsInEachLanguage()
{
    QFETCH(QString, declaration);
    const PersianNumbers persian;
    QVERIFY(QString("%L1").arg(2) != "2");
    QStandardItemModel model(1, 3);
    EditableTableView view;
    view.setColumns(QStringList() << ""
                                  << "" << declaration);

    view.setModel(&model);
    view.openPersistentEditor(model.index(0, 2));

    QVERIFY(view.button(0, 2));
    QTEST(view.button(0, 2)->accessibleDescription(), "description");
}

TESSALINE_TEST_MAIN(ChangedLanguageTest)
#include "tst_changedlanguage.moc"
