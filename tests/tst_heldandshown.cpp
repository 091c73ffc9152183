// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CheckItemDelegate.h"
#include "DisguisedModel.h"
#include "EditComboItemDelegate.h"
#include "PasswordItemDelegate.h"
#include "TestCase.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QScopedPointer>
#include <QStringListModel>

namespace {

/// A delegate of each kind, by its keyword.
QItemDelegate *newDelegate(const QString &keyword, QAbstractItemModel *items)
{
    if (keyword == "editbox") {
        return new EditItemDelegate;
    }
    if (keyword == "passwordbox") {
        return new PasswordItemDelegate;
    }
    if (keyword == "checkbox") {
        return new CheckItemDelegate("Verify");
    }
    ComboItemDelegate *delegate
        = keyword == "combobox" ? new ComboItemDelegate : new EditComboItemDelegate;
    delegate->bindModel(items, 0);
    return delegate;
}

/// An editor of a cell that holds one text and shows another.
struct Editor
{
    Editor(const QString &keyword, const QString &held)
        : items(QStringList() << "shown"
                              << "held"
                              << " held ")
        , model(held)
        , delegate(newDelegate(keyword, &items))
        , widget(delegate->createEditor(&parent, QStyleOptionViewItem(), model.index(0, 0)))
    {
        delegate->setEditorData(widget, model.index(0, 0));
    }

    QString text() const
    {
        if (const QCheckBox *box = qobject_cast<QCheckBox *>(widget)) {
            return box->isChecked() ? "on" : "off";
        }
        const QComboBox *list = qobject_cast<QComboBox *>(widget);
        const QLineEdit *field = qobject_cast<QLineEdit *>(widget);
        return list ? list->currentText() : field ? field->text() : QString("no editor");
    }

    void commit()
    {
        delegate->setModelData(widget, &model, model.index(0, 0));
    }

    QStringListModel items;
    DisguisedModel model;
    const QScopedPointer<QItemDelegate> delegate;
    QWidget parent;
    QWidget *const widget;
};

} // namespace

/// Editors work on what a cell holds, to the letter, and not on what it shows.
class HeldAndShownTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void opensWithWhatTheCellHolds_data();
    void opensWithWhatTheCellHolds();
    void writesNothingOverWhatTheCellHolds_data();
    void writesNothingOverWhatTheCellHolds();
    void writesWhatTheCellOnlyShows_data();
    void writesWhatTheCellOnlyShows();
    void keepsTheBlanksOfATypedText();
};

namespace {

void addRowsForTexts()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("held");
    QTest::addColumn<QString>("text");

    QTest::newRow("list") << "combobox"
                          << "held"
                          << "held";
    QTest::newRow("list, blanks") << "combobox"
                                  << " held "
                                  << " held ";
    QTest::newRow("list, unknown") << "combobox"
                                   << "unknown"
                                   << "";
    QTest::newRow("list to type in") << "editcombobox"
                                     << "held"
                                     << "held";
    QTest::newRow("list to type in, blanks") << "editcombobox"
                                             << " unknown "
                                             << " unknown ";
    QTest::newRow("field") << "editbox"
                           << "held"
                           << "held";
    QTest::newRow("field, blanks") << "editbox"
                                   << " held "
                                   << " held ";
    QTest::newRow("list to type in, two lines") << "editcombobox"
                                                << "a\nb"
                                                << "a\nb";
    QTest::newRow("field, two lines") << "editbox"
                                      << "a\nb"
                                      << "a\nb";
    QTest::newRow("check box") << "checkbox"
                               << ""
                               << "off";
}

} // namespace

void HeldAndShownTest::opensWithWhatTheCellHolds_data()
{
    addRowsForTexts();
    QTest::newRow("password") << "passwordbox"
                              << "held"
                              << "held";
}

void HeldAndShownTest::opensWithWhatTheCellHolds()
{
    QFETCH(QString, keyword);
    QFETCH(QString, held);

    const Editor editor(keyword, held);

    QTEST(editor.text(), "text");
}

void HeldAndShownTest::writesNothingOverWhatTheCellHolds_data()
{
    addRowsForTexts();
}

void HeldAndShownTest::writesNothingOverWhatTheCellHolds()
{
    QFETCH(QString, keyword);
    QFETCH(QString, held);
    Editor editor(keyword, held);

    editor.commit();

    QCOMPARE(editor.model.writes, QStringList());
}

void HeldAndShownTest::writesWhatTheCellOnlyShows_data()
{
    QTest::addColumn<QString>("keyword");

    QTest::newRow("list") << "combobox";
    QTest::newRow("list to type in") << "editcombobox";
}

void HeldAndShownTest::writesWhatTheCellOnlyShows()
{
    QFETCH(QString, keyword);
    Editor editor(keyword, "held");
    qobject_cast<QComboBox *>(editor.widget)->setCurrentIndex(0);

    editor.commit();

    QCOMPARE(editor.model.writes, QStringList("edit shown"));
}

void HeldAndShownTest::keepsTheBlanksOfATypedText()
{
    Editor editor("editcombobox", "held");
    qobject_cast<QComboBox *>(editor.widget)->setEditText(" typed ");

    editor.commit();

    QCOMPARE(editor.model.writes, QStringList("edit  typed "));
}

TESSALINE_TEST_MAIN(HeldAndShownTest)
#include "tst_heldandshown.moc"
