// SPDX-License-Identifier: LGPL-3.0-or-later
// A form that uic has turned into code, linked with the library as an application links it.
#include "TestCase.h"
#include "ViewHelpers.h"

#ifdef TESSALINE_HAS_PLOT
#include "ui_BackupForm.h"
typedef Ui::BackupForm Form;
#else
#include "ui_TableForm.h"
typedef Ui::TableForm Form;
#endif

#include <QImage>
#include <QLineEdit>
#include <QPointer>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

class FormTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void createsItsWidgets();
    void keepsWhatTheFormSays();
    void keepsDelegatesAndBindingsWhenTheLanguageChanges();
#ifdef TESSALINE_HAS_PLOT
    void takesSamples();
#endif
    void connectsTheFocusOfTheSpinBox();
};

void FormTest::createsItsWidgets()
{
    QWidget window;
    Form form;

    form.setupUi(&window);

    QCOMPARE(QString::fromLatin1(form.jobs->metaObject()->className()),
             QString("EditableTableView"));
    QCOMPARE(QString::fromLatin1(form.limit->metaObject()->className()), QString("SpinBox"));
    QCOMPARE(form.jobs->parentWidget(), &window);
}

void FormTest::keepsWhatTheFormSays()
{
    QWidget window;
    Form form;

    form.setupUi(&window);

    QCOMPARE(form.jobs->getColumns(),
             QStringList() << "editbox"
                           << "combobox"
                           << "checkbox:Verify"
                           << "button:Run");
    QCOMPARE(form.jobs->getStretchSection(), 0);
    QCOMPARE(form.limit->maximum(), 1000);
    QCOMPARE(form.limit->value(), 20);
}

// Columns that a form leaves translatable would be declared anew at each change of the language.
void FormTest::keepsDelegatesAndBindingsWhenTheLanguageChanges()
{
    QWidget window;
    Form form;
    form.setupUi(&window);
    const QPointer<QAbstractItemDelegate> delegate = form.jobs->itemDelegateForColumn(1);
    QVERIFY(delegate);

    form.retranslateUi(&window);

    QVERIFY(delegate);
    QCOMPARE(form.jobs->itemDelegateForColumn(1), delegate.data());
}

#ifdef TESSALINE_HAS_PLOT
void FormTest::takesSamples()
{
    QWidget window;
    Form form;
    form.setupUi(&window);
    showWindow(&window, 500, 400);
    const QImage before = compat::grab(form.throughput).toImage();

    form.throughput->updateData(5000000);

    QTRY_VERIFY(compat::grab(form.throughput).toImage() != before);
    QCOMPARE(form.throughput->bgColor(), QString("#ffffff"));
    QCOMPARE(form.throughput->curveColor(), QString("#4682b4"));
    QCOMPARE(form.throughput->xTitle(), QString("Time of day"));
}
#endif

void FormTest::connectsTheFocusOfTheSpinBox()
{
    QWidget window;
    Form form;
    form.setupUi(&window);
    showWindow(&window, 500, 400);
    QSignalSpy focused(form.limit, SIGNAL(focused()));

    QTest::mouseClick(form.limit->findChild<QLineEdit *>(), Qt::LeftButton);

    QCOMPARE(focused.size(), 1);
}

TESSALINE_TEST_MAIN(FormTest)

#include "tst_form.moc"
