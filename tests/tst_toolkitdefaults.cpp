// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CheckItemDelegate.h"
#include "EditComboItemDelegate.h"
#include "FileListTableView.h"
#include "PasswordItemDelegate.h"
#include "PlainObject.h"
#include "SpinBox.h"
#include "TestCase.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedPointer>
#include <QStandardItemModel>

namespace {

/// A new editor of a delegate's, not shown.
class NewEditor
{
public:
    explicit NewEditor(const QAbstractItemDelegate &delegate)
        : model(1, 1)
        , editor(delegate.createEditor(&parent, QStyleOptionViewItem(), model.index(0, 0)))
    {
    }

    const QWidget &operator*() const
    {
        return *editor;
    }

private:
    QStandardItemModel model;
    QWidget parent;
    QWidget *editor;
};

/// A toolkit's widget that is a child, as editors are.
template <class Widget> struct Plain
{
    Plain()
        : widget(new Widget(&parent))
    {
    }

    QWidget parent;
    Widget *widget;
};

} // namespace

/// Whatever is not documented to be different is as the toolkit has it.
class ToolkitDefaultsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void makesAComboBoxAsTheToolkitDoes();
    void makesAnEditableComboBoxAsTheToolkitDoes();
    void makesALineEditAsTheToolkitDoes();
    void makesAPasswordFieldAsTheToolkitDoes();
    void makesACheckBoxAsTheToolkitDoes();
    void makesASpinBoxAsTheToolkitDoes();
    void makesAFileListAsTheToolkitDoes();
    void makesTheHeaderOfAFileListAsTheToolkitDoes();
    void makesTheButtonOfAFileListAsTheToolkitDoes();
};

void ToolkitDefaultsTest::makesAComboBoxAsTheToolkitDoes()
{
    const NewEditor editor((ComboItemDelegate()));
    const Plain<QComboBox> plain;

    QCOMPARE(differences(*editor, *plain.widget),
             QString("accessibleDescription,autoFillBackground,frame"));
}

void ToolkitDefaultsTest::makesAnEditableComboBoxAsTheToolkitDoes()
{
    const NewEditor editor((EditComboItemDelegate()));
    const Plain<QComboBox> plain;
    plain.widget->setEditable(true);

    QCOMPARE(differences(*editor, *plain.widget),
             QString("accessibleDescription,autoFillBackground,frame"));
}

void ToolkitDefaultsTest::makesALineEditAsTheToolkitDoes()
{
    const NewEditor editor((EditItemDelegate()));
    const Plain<QLineEdit> plain;

    QCOMPARE(differences(*editor, *plain.widget),
             QString("accessibleDescription,autoFillBackground,frame"));
}

void ToolkitDefaultsTest::makesAPasswordFieldAsTheToolkitDoes()
{
    const NewEditor editor((PasswordItemDelegate()));
    const Plain<QLineEdit> plain;
    plain.widget->setEchoMode(QLineEdit::Password);

    QCOMPARE(differences(*editor, *plain.widget),
             QString("accessibleDescription,autoFillBackground,frame"));
}

void ToolkitDefaultsTest::makesACheckBoxAsTheToolkitDoes()
{
    const NewEditor editor(CheckItemDelegate("Verify"));
    const Plain<QCheckBox> plain;

    QCOMPARE(differences(*editor, *plain.widget),
             QString("accessibleDescription,autoFillBackground,text"));
}

void ToolkitDefaultsTest::makesASpinBoxAsTheToolkitDoes()
{
    const SpinBox spinBox;
    const QSpinBox plain;

    QCOMPARE(differences(spinBox, plain), QString());
}

void ToolkitDefaultsTest::makesAFileListAsTheToolkitDoes()
{
    const FileListTableView view;
    const QTableView plain;

    QCOMPARE(differences(view, plain),
             QString("editTriggers,selectionMode,selectionBehavior,showGrid,sortingEnabled,"
                     "wordWrap"));
}

void ToolkitDefaultsTest::makesTheHeaderOfAFileListAsTheToolkitDoes()
{
    const FileListTableView view;
    QTableView plain;
    plain.setSortingEnabled(true);

    QCOMPARE(differences(*view.horizontalHeader(), *plain.horizontalHeader()),
             QString("highlightSections"));
    QVERIFY(!compat::sectionsMovable(view.horizontalHeader()));
}

void ToolkitDefaultsTest::makesTheButtonOfAFileListAsTheToolkitDoes()
{
    QStandardItemModel model(0, 5);
    FileListTableView view;
    tolerateWarnings("Object::connect"); // the model has no pages
    tolerateWarnings("QObject::connect");
    view.setModel(&model);
    const QWidget *button = view.indexWidget(model.index(0, 0));
    const Plain<QPushButton> plain;

    QVERIFY(button);
    QCOMPARE(differences(*button, *plain.widget), QString("autoFillBackground"));
}

TESSALINE_TEST_MAIN(ToolkitDefaultsTest)
#include "tst_toolkitdefaults.moc"
