// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Dice.h"
#include "PixelArea.h"
#include "TestCase.h"

#include <QImage>
#include <QPainter>
#include <QPolygonF>

namespace {

const QSize canvas(400, 300);
const double level = 280.0;

QImage emptyCanvas()
{
    QImage image(canvas, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

/// The area below a line as QPainter fills it.
QImage filledPolygon(QPolygonF line)
{
    line << QPointF(line.last().x(), level) << QPointF(line.first().x(), level);
    QImage image = emptyCanvas();
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 100));
    painter.drawPolygon(line);
    return image;
}

/// The same of rectangles. Where two overlap it is darker.
QImage filledRectangles(const QPolygonF &line)
{
    QImage image = emptyCanvas();
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 100));
    painter.drawRects(PixelArea(line, level).rectangles());
    return image;
}

/// A line that goes from left to right, by steps of so much at most, in such fractions of a pixel.
QPolygonF randomLine(Dice *dice, int widestStep, int fractions)
{
    QPolygonF line;
    int x = dice->below(20 * fractions);
    while (x < (canvas.width() - 1) * fractions) {
        const int y = dice->below(static_cast<int>(level) * fractions);
        line.append(QPointF(x, y) / fractions);
        x += dice->below(widestStep * fractions + 1);
    }
    return line;
}

/// The line through points such as "0,100 5,20".
QPolygonF lineOf(const QString &text)
{
    QPolygonF line;
    const QStringList points = text.split(' ');
    for (const QString &point : points) {
        if (!point.isEmpty()) {
            line.append(QPointF(point.section(',', 0, 0).toInt(), point.section(',', 1).toInt()));
        }
    }
    return line;
}

/// The left edge and width, the upper edge and height of each, such as "0+5,100+20".
QString textOf(const QVector<QRect> &rectangles)
{
    QStringList texts;
    for (const QRect &rectangle : rectangles) {
        texts.append(QString("%1+%2,%3+%4")
                         .arg(rectangle.x())
                         .arg(rectangle.width())
                         .arg(rectangle.y())
                         .arg(rectangle.height()));
    }
    return texts.join(" ");
}

} // namespace

class PixelAreaTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fillsWhatQPainterFills_data();
    void fillsWhatQPainterFills();
    void isMadeOfFewRectangles_data();
    void isMadeOfFewRectangles();
};

void PixelAreaTest::fillsWhatQPainterFills_data()
{
    QTest::addColumn<int>("widestStep");
    QTest::addColumn<int>("fractions");

    QTest::newRow("many points a column") << 1 << 1;
    QTest::newRow("a few columns a point") << 4 << 1;
    QTest::newRow("slopes") << 50 << 1;
    QTest::newRow("long slopes") << 350 << 1;
    QTest::newRow("halves of pixels") << 3 << 2;
    QTest::newRow("long slopes between halves") << 350 << 2;
    QTest::newRow("64ths of pixels") << 5 << 64;
    QTest::newRow("finer than 64ths") << 5 << 256;
}

void PixelAreaTest::fillsWhatQPainterFills()
{
    QFETCH(int, widestStep);
    QFETCH(int, fractions);
    Dice dice(7);

    for (int i = 0; i < 50; ++i) {
        const QPolygonF line = randomLine(&dice, widestStep, fractions);
        QVERIFY2(filledRectangles(line) == filledPolygon(line), qPrintable(QString::number(i)));
    }
}

void PixelAreaTest::isMadeOfFewRectangles_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("rectangles");

    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("a point") << "3,5"
                             << "";
    QTest::newRow("flat") << "3,100 9,100 20,100"
                          << "3+17,100+180";
    QTest::newRow("a tower") << "0,100 5,100 5,20 8,20 8,100 10,100"
                             << "5+3,20+80 0+10,100+180";
    QTest::newRow("steps up") << "0,200 5,200 5,100 10,100"
                              << "5+5,100+100 0+10,200+80";
    QTest::newRow("steps down") << "0,100 5,100 5,200 10,200"
                                << "0+5,100+100 0+10,200+80";
    QTest::newRow("a valley") << "0,100 5,100 5,200 8,200 8,150 10,150"
                              << "0+5,100+100 8+2,150+50 0+10,200+80";
    QTest::newRow("on the level") << "0,280 10,280"
                                  << "";
}

void PixelAreaTest::isMadeOfFewRectangles()
{
    QFETCH(QString, line);

    QTEST(textOf(PixelArea(lineOf(line), level).rectangles()), "rectangles");
}

TESSALINE_TEST_MAIN(PixelAreaTest)
#include "tst_pixelarea.moc"
