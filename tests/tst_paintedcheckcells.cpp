// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditorFixture.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

namespace {

/// Notes what it is asked to draw. Its windows are yellow and its buttons blue.
class NotingStyle : public QProxyStyle
{
public:
    NotingStyle()
        : checkBoxes(0)
        , states(State_None)
        , drewForAWidget(false)
    {
    }

    QPalette standardPalette() const override
    {
        QPalette palette = QProxyStyle::standardPalette();
        palette.setColor(QPalette::Window, Qt::yellow);
        palette.setColor(QPalette::Button, Qt::blue);
        return palette;
    }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        if (element == CE_CheckBox) {
            ++checkBoxes;
            states |= option->state;
            drewForAWidget = drewForAWidget || widget;
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    mutable int checkBoxes;
    mutable State states; ///< Of any of them.
    mutable bool drewForAWidget; ///< Any of them.
};

/// Makes a noting style the application's, for as long as it lives.
struct ApplicationStyle
{
    ApplicationStyle()
        : previous(QApplication::style()->objectName())
        , style(new NotingStyle)
    {
        QApplication::setStyle(style); // which owns it
    }

    ~ApplicationStyle()
    {
        QApplication::setStyle(previous);
    }

    const QString previous;
    NotingStyle *const style;
};

} // namespace

/// Which part a shown table has in the painting of its check cells: none but the place.
class PaintedCheckCellsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showNothingOfTheFocus();
    void areDrawnByTheApplicationsStyle();
    void areDrawnForNoWidget();
    void haveTheBackgroundOfAWindow();
};

void PaintedCheckCellsTest::showNothingOfTheFocus()
{
    const ApplicationStyle application;
    EditorFixture table("checkbox");
    table.view.setCurrentIndex(table.model.index(0, 1));
    QVERIFY(table.view.hasFocus());

    compat::grab(table.view.viewport());

    QVERIFY(application.style->checkBoxes > 0);
    QCOMPARE(int(application.style->states), int(QStyle::State_Enabled | QStyle::State_Off));
}

void PaintedCheckCellsTest::areDrawnByTheApplicationsStyle()
{
    const ApplicationStyle application;
    NotingStyle own;
    EditorFixture table("checkbox");
    table.view.setStyle(&own);
    application.style->checkBoxes = 0;

    compat::grab(table.view.viewport());

    QVERIFY(application.style->checkBoxes > 0);
    QCOMPARE(own.checkBoxes, 0);
}

void PaintedCheckCellsTest::areDrawnForNoWidget()
{
    const ApplicationStyle application;
    EditorFixture table("checkbox");

    compat::grab(table.view.viewport());

    QVERIFY(application.style->checkBoxes > 0);
    QVERIFY(!application.style->drewForAWidget);
}

void PaintedCheckCellsTest::haveTheBackgroundOfAWindow()
{
    const ApplicationStyle application;
    EditorFixture table("checkbox");
    table.view.setShowGrid(false);

    const QRect cell = table.view.visualRect(table.model.index(1, 2));

    QCOMPARE(colorAt(table.view.viewport(), cell.bottomRight()), QColor(Qt::yellow));
}

TESSALINE_TEST_MAIN(PaintedCheckCellsTest)
#include "tst_paintedcheckcells.moc"
