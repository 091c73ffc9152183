// SPDX-License-Identifier: LGPL-3.0-or-later
// What a button in a cell looks like with and without the focus.
#include "ButtonTable.h"
#include "CellButton.h"
#include "TestCase.h"
#include "TestCompat.h"
#include "ViewHelpers.h"

#include <QHBoxLayout>
#include <QImage>
#include <QLineEdit>
#include <QScopedPointer>
#include <QStyle>
#include <QStyleFactory>

#include <cmath>
#include <cstdlib>

namespace {

QPalette palette(const QString &name)
{
    QPalette palette(name == "dark" ? QColor(53, 53, 53) : QColor(239, 239, 239));
    palette.setColor(QPalette::ButtonText, name == "dark" ? Qt::white : Qt::black);
    return palette;
}

QImage picture(QWidget *widget)
{
    return compat::grab(widget).toImage().convertToFormat(QImage::Format_RGB32);
}

/// A field, where the focus is at first, and a button.
struct Window
{
    Window(const QString &styleName, const QString &paletteName, QPushButton *shown)
        : style(QStyleFactory::create(styleName))
        , field(new QLineEdit)
        , button(shown)
    {
        QHBoxLayout *layout = new QHBoxLayout(&window);
        layout->addWidget(field);
        layout->addWidget(button);
        button->setFixedSize(80, 20);
        button->setStyle(style.data());
        window.setPalette(palette(paletteName));
        showWindow(&window, 200, 60);
        field->setFocus();
    }

    QImage picture() const
    {
        return ::picture(button);
    }

    QScopedPointer<QStyle> style;
    QWidget window;
    QLineEdit *field;
    QPushButton *button;
};

/// The largest difference in lightness that the focus makes to any pixel of a picture.
int mostChange(const QImage &before, const QImage &after)
{
    int most = 0;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            most = qMax(most, std::abs(qGray(before.pixel(x, y)) - qGray(after.pixel(x, y))));
        }
    }
    return most;
}

void addLooks()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("palette");
    QTest::addColumn<bool>("flat");

    const QStringList palettes = QStringList() << "light"
                                               << "dark";
    const QStringList styles = QStyleFactory::keys();
    for (const QString &style : styles) {
        for (const QString &palette : palettes) {
            const QString name = style + ", " + palette;
            QTest::newRow(qPrintable(name + ", flat")) << style << palette << true;
            // Windows paints raised buttons light on a dark palette too; no caption can be read
            // there.
            if (name != "windowsvista, dark") {
                QTest::newRow(qPrintable(name + ", raised")) << style << palette << false;
            }
        }
    }
}

} // namespace

class ButtonFocusFrameTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isSeenWhenReachedByTab_data();
    void isSeenWhenReachedByTab();
    void isSeenInATable();
    void isSeenWhereTheTextOfTheWindowIsNot();
    void isSeenWhileTheButtonIsDown();
    void goesWithTheFocus_data();
    void goesWithTheFocus();
    void goesWithTheActiveWindow();
    void leavesAButtonWithoutTheFocusAsQtPaintsIt_data();
    void leavesAButtonWithoutTheFocusAsQtPaintsIt();
    void leavesThePictureInsideTheFrameToQt();
};

void ButtonFocusFrameTest::isSeenWhenReachedByTab_data()
{
    addLooks();
}

void ButtonFocusFrameTest::isSeenWhenReachedByTab()
{
    QFETCH(QString, style);
    QFETCH(QString, palette);
    QFETCH(bool, flat);
    Window window(style, palette, new CellButton("Run", flat, nullptr));
    const QImage before = window.picture();

    QTest::keyClick(window.field, Qt::Key_Tab);

    QVERIFY(window.button->hasFocus());
    QVERIFY(mostChange(before, window.picture()) > 100);
}

void ButtonFocusFrameTest::isSeenInATable()
{
    ButtonTable table;
    table.view.setTabKeyNavigation(false);
    showWindow(&table.view, 400, 200);
    table.view.setFocus();
    const QImage before = picture(table.button(0));

    QTest::keyClick(&table.view, Qt::Key_Tab);

    QVERIFY(table.button(0)->hasFocus());
    QVERIFY(mostChange(before, picture(table.button(0))) > 100);
}

void ButtonFocusFrameTest::isSeenWhileTheButtonIsDown()
{
    Window window("Fusion", "light", new CellButton("Run", true, nullptr));
    QTest::keyClick(window.field, Qt::Key_Tab);

    QTest::keyPress(window.button, Qt::Key_Space);

    QVERIFY(window.button->isDown());
    const QImage with = window.picture();
    window.field->setFocus();
    window.button->setDown(true);
    QVERIFY(mostChange(window.picture(), with) > 100);
}

void ButtonFocusFrameTest::goesWithTheFocus_data()
{
    addLooks();
}

void ButtonFocusFrameTest::goesWithTheFocus()
{
    QFETCH(QString, style);
    QFETCH(QString, palette);
    QFETCH(bool, flat);
    Window window(style, palette, new CellButton("Run", flat, nullptr));
    const QImage before = window.picture();
    QTest::keyClick(window.field, Qt::Key_Tab);

    QTest::keyClick(window.button, Qt::Key_Tab);

    QVERIFY(window.field->hasFocus());
    QCOMPARE(window.picture(), before);
}

void ButtonFocusFrameTest::goesWithTheActiveWindow()
{
    Window window("Fusion", "light", new CellButton("Run", true, nullptr));
    const QImage before = window.picture();
    QTest::keyClick(window.field, Qt::Key_Tab);
    QWidget other;

    showWindow(&other, 100, 100);

    QCOMPARE(mostChange(window.picture(), before), 0);
}

void ButtonFocusFrameTest::leavesAButtonWithoutTheFocusAsQtPaintsIt_data()
{
    addLooks();
}

void ButtonFocusFrameTest::leavesAButtonWithoutTheFocusAsQtPaintsIt()
{
    QFETCH(QString, style);
    QFETCH(QString, palette);
    QFETCH(bool, flat);
    QPushButton *plain = new QPushButton("Run");
    plain->setFlat(flat);
    plain->setAutoFillBackground(true);
    const Window bare(style, palette, plain);
    const QImage painted = bare.picture();

    const Window window(style, palette, new CellButton("Run", flat, nullptr));

    QCOMPARE(window.picture(), painted);
}

void ButtonFocusFrameTest::leavesThePictureInsideTheFrameToQt()
{
    QPushButton *plain = new QPushButton("Run");
    plain->setFlat(true);
    plain->setAutoFillBackground(true);
    Window bare("Windows", "light", plain);
    QTest::keyClick(bare.field, Qt::Key_Tab);
    const QImage painted = bare.picture();
    Window window("Windows", "light", new CellButton("Run", true, nullptr));

    QTest::keyClick(window.field, Qt::Key_Tab);

    const int frame = int(std::ceil(2 * compat::pixelRatio(*window.button)));
    const QRect inside = painted.rect().adjusted(frame, frame, -frame, -frame);
    QCOMPARE(window.picture().copy(inside), painted.copy(inside));
}

void ButtonFocusFrameTest::isSeenWhereTheTextOfTheWindowIsNot()
{
    Window window("Fusion", "light", new CellButton("Run", true, nullptr));
    QPalette hidden = window.window.palette();
    hidden.setColor(QPalette::WindowText, hidden.color(QPalette::Button));
    window.window.setPalette(hidden);
    const QImage before = window.picture();

    QTest::keyClick(window.field, Qt::Key_Tab);

    QVERIFY(mostChange(before, window.picture()) > 100);
}

TESSALINE_TEST_MAIN(ButtonFocusFrameTest)
#include "tst_buttonfocusframe.moc"
