// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SpinBox.h"
#include "TestCase.h"
#include "TestCompat.h"
#include "ViewHelpers.h"

#include <QLineEdit>
#include <QVBoxLayout>

namespace {

/// Counts how often the spin box's own handling passes the focus on to its text.
class NotingField : public QLineEdit
{
public:
    int focusIns = 0;

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        ++focusIns;
        QLineEdit::focusInEvent(event);
    }
};

/// Lets a test exchange the field of a spin box.
class OpenSpinBox : public SpinBox
{
public:
    OpenSpinBox()
        : field(new NotingField)
    {
        setLineEdit(field);
    }

    NotingField *field;
};

/// A spin box between two line edits, in the order of the Tab key; the first one has the focus.
struct Form
{
    Form()
        : before(new QLineEdit)
        , spinBox(new OpenSpinBox)
        , after(new QLineEdit)
    {
        QVBoxLayout *layout = new QVBoxLayout(&window);
        layout->addWidget(before);
        layout->addWidget(spinBox);
        layout->addWidget(after);
        showWindow(&window, 200, 150);
        before->setFocus();
    }

    QString selectedText() const
    {
        return spinBox->findChild<QLineEdit *>()->selectedText();
    }

    QWidget window;
    QLineEdit *before;
    OpenSpinBox *spinBox;
    QLineEdit *after;
};

} // namespace

class SpinBoxTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresOneSignalOnly();
    void isASpinBoxWithItsDefaults();
    void announcesFocusByReason_data();
    void announcesFocusByReason();
    void announcesAClick();
    void announcesTheTabKey_data();
    void announcesTheTabKey();
    void announcesEachReturnOfTheFocus();
    void staysSilentWhenTheWindowIsActivated();
    void staysSilentWhenFocusedByCall();
    void takesKeysAfterAnUnannouncedFocus();
    void announcesBeforeItReacts();
    void stillReactsWhenAReceiverMovesTheFocus();

public Q_SLOTS:
    void noteSelection();
    void moveFocusAway();

private:
    Form *form;
    QString selectionWhenAnnounced;
};

void SpinBoxTest::noteSelection()
{
    selectionWhenAnnounced = form->selectedText();
}

void SpinBoxTest::moveFocusAway()
{
    form->after->setFocus();
}

void SpinBoxTest::declaresOneSignalOnly()
{
    const QMetaObject &metaObject = SpinBox::staticMetaObject;

    QCOMPARE(metaObject.methodCount() - metaObject.methodOffset(), 1);
    QCOMPARE(metaObject.propertyCount() - metaObject.propertyOffset(), 0);
    const QMetaMethod method = metaObject.method(metaObject.methodOffset());
    QCOMPARE(QString(compat::methodSignature(method)), QString("focused()"));
    QCOMPARE(int(method.methodType()), int(QMetaMethod::Signal));
    QCOMPARE(int(method.access()), int(compat::signalAccess));
    QCOMPARE(QString(metaObject.className()), QString("SpinBox"));
    QCOMPARE(QString(metaObject.superClass()->className()), QString("QSpinBox"));
}

void SpinBoxTest::isASpinBoxWithItsDefaults()
{
    const SpinBox spinBox;
    const QSpinBox plain;

    QVERIFY(!spinBox.parent());
    QCOMPARE(spinBox.minimum(), plain.minimum());
    QCOMPARE(spinBox.maximum(), plain.maximum());
    QCOMPARE(spinBox.value(), plain.value());
    QCOMPARE(spinBox.singleStep(), plain.singleStep());
    QCOMPARE(int(spinBox.alignment()), int(plain.alignment()));
    QCOMPARE(int(spinBox.buttonSymbols()), int(plain.buttonSymbols()));
}

void SpinBoxTest::announcesFocusByReason_data()
{
    QTest::addColumn<int>("reason");
    QTest::addColumn<int>("announcements");

    QTest::newRow("mouse") << int(Qt::MouseFocusReason) << 1;
    QTest::newRow("tab") << int(Qt::TabFocusReason) << 1;
    QTest::newRow("backtab") << int(Qt::BacktabFocusReason) << 1;
    QTest::newRow("active window") << int(Qt::ActiveWindowFocusReason) << 0;
    QTest::newRow("popup") << int(Qt::PopupFocusReason) << 0;
    QTest::newRow("shortcut") << int(Qt::ShortcutFocusReason) << 0;
    QTest::newRow("menu bar") << int(Qt::MenuBarFocusReason) << 0;
    QTest::newRow("other") << int(Qt::OtherFocusReason) << 0;
    QTest::newRow("none") << int(Qt::NoFocusReason) << 0;
}

void SpinBoxTest::announcesFocusByReason()
{
    QFETCH(int, reason);
    QFETCH(int, announcements);
    Form shown;
    QSignalSpy spy(shown.spinBox, SIGNAL(focused()));

    shown.spinBox->setFocus(Qt::FocusReason(reason));

    QCOMPARE(spy.count(), announcements);
    QCOMPARE(shown.spinBox->field->focusIns, announcements); // the base class's part
    QVERIFY(shown.spinBox->hasFocus());
}

void SpinBoxTest::announcesAClick()
{
    Form shown;
    QSignalSpy spy(shown.spinBox, SIGNAL(focused()));

    QTest::mouseClick(shown.spinBox->findChild<QLineEdit *>(), Qt::LeftButton);

    QCOMPARE(spy.count(), 1);
    QVERIFY(shown.spinBox->hasFocus());
}

void SpinBoxTest::announcesTheTabKey_data()
{
    QTest::addColumn<bool>("forwards");

    QTest::newRow("forwards") << true;
    QTest::newRow("backwards") << false;
}

void SpinBoxTest::announcesTheTabKey()
{
    QFETCH(bool, forwards);
    Form shown;
    QLineEdit *start = forwards ? shown.before : shown.after;
    start->setFocus();
    QSignalSpy spy(shown.spinBox, SIGNAL(focused()));

    QTest::keyClick(start, forwards ? Qt::Key_Tab : Qt::Key_Backtab);

    QCOMPARE(spy.count(), 1);
    QVERIFY(shown.spinBox->hasFocus());
    QCOMPARE(shown.selectedText(), QString("0")); // the base class did its part
}

void SpinBoxTest::announcesEachReturnOfTheFocus()
{
    Form shown;
    QSignalSpy spy(shown.spinBox, SIGNAL(focused()));

    for (int i = 0; i < 3; ++i) {
        shown.before->setFocus();
        QTest::keyClick(shown.before, Qt::Key_Tab);
    }

    QCOMPARE(spy.count(), 3);
}

void SpinBoxTest::staysSilentWhenTheWindowIsActivated()
{
    Form shown;
    QTest::keyClick(shown.before, Qt::Key_Tab);
    QWidget other;
    showWindow(&other, 100, 100);
    QSignalSpy spy(shown.spinBox, SIGNAL(focused()));

    compat::activate(&shown.window);

    QTRY_VERIFY(shown.spinBox->hasFocus());
    QCOMPARE(spy.count(), 0);
    QCOMPARE(shown.spinBox->field->focusIns, 1); // that of the Tab key
}

void SpinBoxTest::staysSilentWhenFocusedByCall()
{
    Form shown;
    QSignalSpy spy(shown.spinBox, SIGNAL(focused()));

    shown.spinBox->setFocus();

    QCOMPARE(spy.count(), 0);
    QCOMPARE(shown.spinBox->field->focusIns, 0);
}

void SpinBoxTest::takesKeysAfterAnUnannouncedFocus()
{
    Form shown;
    shown.spinBox->setFocus();
    shown.spinBox->selectAll();

    QTest::keyClicks(shown.spinBox, "42");

    QCOMPARE(shown.spinBox->value(), 42);
}

void SpinBoxTest::announcesBeforeItReacts()
{
    Form shown;
    form = &shown;
    selectionWhenAnnounced = "not announced";
    connect(shown.spinBox, SIGNAL(focused()), SLOT(noteSelection()));

    QTest::keyClick(shown.before, Qt::Key_Tab);

    QCOMPARE(selectionWhenAnnounced, QString());
    QCOMPARE(shown.selectedText(), QString("0"));
}

void SpinBoxTest::stillReactsWhenAReceiverMovesTheFocus()
{
    Form shown;
    form = &shown;
    connect(shown.spinBox, SIGNAL(focused()), SLOT(moveFocusAway()));

    QTest::keyClick(shown.before, Qt::Key_Tab);

    QVERIFY(shown.after->hasFocus());
    QCOMPARE(shown.selectedText(), QString("0")); // the base class has selected, afterwards
}

TESSALINE_TEST_MAIN(SpinBoxTest)
#include "tst_spinbox.moc"
