// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SpinBox.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

/// A spin box below a line edit that has the focus.
struct Form
{
    Form()
        : field(new QLineEdit)
        , spinBox(new SpinBox)
    {
        QVBoxLayout *layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        layout->addWidget(spinBox);
        showWindow(&window, 200, 120);
        field->setFocus();
    }

    QWidget window;
    QLineEdit *field;
    SpinBox *spinBox;
};

} // namespace

/// Ways to bring the focus into a spin box, and what becomes of it.
class SpinBoxFocusTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void announcesAClickOnAnArrow();
    void announcesNothingMoreWhileItHasTheFocus();
    void announcesWhenItIsReadOnly();
    void announcesBeforeTheValueChanges();
    void keepsTheFocusThatItDoesNotAnnounce();
    void keepsWhatIsSelectedWhenTheWindowIsActivated();
    void announcesNothingWhenItIsDisabled();
    void announcesNothingOfAnEventWithoutAReason();

public Q_SLOTS:
    void noteValue();

private:
    const SpinBox *noted = nullptr;
    int notedValue = -1;
};

void SpinBoxFocusTest::noteValue()
{
    notedValue = noted->value();
}

void SpinBoxFocusTest::announcesAClickOnAnArrow()
{
    Form form;
    QSignalSpy spy(form.spinBox, SIGNAL(focused()));

    QTest::mouseClick(form.spinBox, Qt::LeftButton, Qt::NoModifier,
                      QPoint(form.spinBox->width() - 8, 6));

    QCOMPARE(spy.count(), 1);
    QCOMPARE(form.spinBox->value(), 1);
    QVERIFY(form.spinBox->hasFocus());
}

void SpinBoxFocusTest::announcesNothingMoreWhileItHasTheFocus()
{
    Form form;
    QTest::keyClick(form.field, Qt::Key_Tab);
    QSignalSpy spy(form.spinBox, SIGNAL(focused()));

    QTest::keyClicks(form.spinBox, "12");
    QTest::keyClick(form.spinBox, Qt::Key_Up);
    QTest::mouseClick(form.spinBox->findChild<QLineEdit *>(), Qt::LeftButton);

    QCOMPARE(spy.count(), 0);
    QCOMPARE(form.spinBox->value(), 13);
}

void SpinBoxFocusTest::announcesWhenItIsReadOnly()
{
    Form form;
    form.spinBox->setReadOnly(true);
    QSignalSpy spy(form.spinBox, SIGNAL(focused()));

    QTest::keyClick(form.field, Qt::Key_Tab);

    QCOMPARE(spy.count(), 1);
}

void SpinBoxFocusTest::announcesBeforeTheValueChanges()
{
    Form form;
    noted = form.spinBox;
    connect(form.spinBox, SIGNAL(focused()), SLOT(noteValue()));

    QTest::mouseClick(form.spinBox, Qt::LeftButton, Qt::NoModifier,
                      QPoint(form.spinBox->width() - 8, 6));

    QCOMPARE(notedValue, 0);
    QCOMPARE(form.spinBox->value(), 1);
}

void SpinBoxFocusTest::keepsTheFocusThatItDoesNotAnnounce()
{
    Form form;

    form.spinBox->setFocus(Qt::ShortcutFocusReason);
    goThroughEvents();

    QVERIFY(form.spinBox->hasFocus());
    QTest::keyClick(form.spinBox, Qt::Key_Up);
    QCOMPARE(form.spinBox->value(), 1);
}

void SpinBoxFocusTest::keepsWhatIsSelectedWhenTheWindowIsActivated()
{
    Form form;
    form.spinBox->setValue(12);
    QTest::keyClick(form.field, Qt::Key_Tab);
    QLineEdit *text = form.spinBox->findChild<QLineEdit *>();
    text->setSelection(0, 1);
    QWidget other;
    showWindow(&other, 100, 100);

    compat::activate(&form.window);

    QTRY_VERIFY(form.spinBox->hasFocus());
    QCOMPARE(text->selectedText(), QString("1"));
}

void SpinBoxFocusTest::announcesNothingWhenItIsDisabled()
{
    Form form;
    form.spinBox->setEnabled(false);
    QSignalSpy spy(form.spinBox, SIGNAL(focused()));

    QTest::keyClick(form.field, Qt::Key_Tab);
    QTest::mouseClick(form.spinBox, Qt::LeftButton);

    QCOMPARE(spy.count(), 0);
}

void SpinBoxFocusTest::announcesNothingOfAnEventWithoutAReason()
{
    SpinBox spinBox;
    QSignalSpy spy(&spinBox, SIGNAL(focused()));
    QFocusEvent event(QEvent::FocusIn, Qt::NoFocusReason); // which setFocus() does not send

    QApplication::sendEvent(&spinBox, &event);

    QCOMPARE(spy.count(), 0);
}

TESSALINE_TEST_MAIN(SpinBoxFocusTest)
#include "tst_spinboxfocus.moc"
