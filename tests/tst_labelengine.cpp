// SPDX-License-Identifier: LGPL-3.0-or-later
#include "LabelEngine.h"
#include "TestCase.h"

#include <qwt_text.h>
#include <qwt_text_engine.h>

#include <QImage>

namespace {

QFont fontOf(const QString &description)
{
    QFont font;
    font.fromString(description);
    return font;
}

/// As the labels of an axis are: without flags, and without margins.
QwtText labelled(const QString &text)
{
    QwtText label(text);
    label.setRenderFlags(0);
    label.setLayoutAttribute(QwtText::MinimumLayout);
    return label;
}

/// A label as the chart makes it while it lays itself out.
QwtText labelledInTurn(const QString &text)
{
    const LabelEngine::Turn turn;
    return labelled(text);
}

const QwtText::TextFormat applicationsFormat = QwtText::TextFormat(127);

/// An engine that an application has registered before the first chart is made.
class ApplicationsEngine : public QwtPlainTextEngine
{
public:
    bool mightRender(const QString &) const override
    {
        return false;
    }
};

bool isQwtsOwn(const QwtText &text)
{
    return text == QwtText(text.text(), QwtText::PlainText);
}

} // namespace

class LabelEngineTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void measuresAsQwtDoes_data();
    void measuresAsQwtDoes();
    void measuresFontsInTurn();
    void tellsFontsOfOneHeightApart();
    void tellsScreensApart();
    void measuresMoreThanItRemembers();
    void measuresTextsWithFlagsByTheirFlags();
    void leavesTextsToQwtBeforeAndAfterATurn();
    void takesTextsInATurn();
    void staysForTheOuterTurn();
    void leavesMarkupToQwt();
    void comesAfterTheEnginesOfTheApplication();
    void leavesTheEnginesOfTheApplicationInPlace();

private:
    QwtTextEngine *applicationsEngine; ///< QwtText deletes it.
};

void LabelEngineTest::initTestCase()
{
    applicationsEngine = new ApplicationsEngine;
    QwtText::setTextEngine(applicationsFormat, applicationsEngine);
}

void LabelEngineTest::measuresAsQwtDoes_data()
{
    QTest::addColumn<QString>("font");
    QTest::addColumn<QString>("text");

    QTest::newRow("small print") << "Ms Shell Dlg 2,4"
                                 << "12:05";
    QTest::newRow("a size") << "Ms Shell Dlg 2,4"
                            << "1.50 KB";
    QTest::newRow("large print") << "DejaVu Sans,40"
                                 << "12:05";
    QTest::newRow("another face") << "DejaVu Serif,17"
                                  << "23:59";
    QTest::newRow("empty") << "DejaVu Sans,9"
                           << "";
    QTest::newRow("two lines") << "DejaVu Sans,9"
                               << "one\ntwo";
}

void LabelEngineTest::measuresAsQwtDoes()
{
    QFETCH(QString, font);
    QFETCH(QString, text);
    const QSizeF plain = labelled(text).textSize(fontOf(font));

    const QwtText label = labelledInTurn(text);

    QCOMPARE(QSizeF(label.textSize(fontOf(font))), plain);
    QCOMPARE(QSizeF(labelledInTurn(text).textSize(fontOf(font))), plain); // from memory
}

void LabelEngineTest::measuresFontsInTurn()
{
    const QString text("12:05");
    for (int size = 4; size < 20; ++size) {
        labelledInTurn(text).textSize(QFont("DejaVu Sans", size));
    }

    const QSizeF again = labelledInTurn(text).textSize(QFont("DejaVu Sans", 4));

    QCOMPARE(again, QSizeF(labelled(text).textSize(QFont("DejaVu Sans", 4))));
}

void LabelEngineTest::tellsFontsOfOneHeightApart()
{
    const QString text("1000000");
    const QFont bold("DejaVu Sans", 9, QFont::Bold);
    labelledInTurn(text).textSize(QFont("DejaVu Sans", 9));

    const QSizeF size = labelledInTurn(text).textSize(bold);

    QCOMPARE(size, QSizeF(labelled(text).textSize(bold)));
}

// Fonts are equal if they are so many points high, however many pixels that makes.
void LabelEngineTest::tellsScreensApart()
{
    const QString text("12:05");
    const QFont font("DejaVu Sans", 23);
    QImage finerScreen(10, 10, QImage::Format_RGB32);
    finerScreen.setDotsPerMeterY(4 * finerScreen.dotsPerMeterY());
    const QFont finer(font, &finerScreen);
    LabelEngine engine;
    engine.textSize(font, 0, text);

    const QSizeF size = engine.textSize(finer, 0, text);

    QVERIFY(finer == font);
    QCOMPARE(size, QSizeF(QwtPlainTextEngine().textSize(finer, 0, text)));
}

void LabelEngineTest::measuresMoreThanItRemembers()
{
    const QFont font("DejaVu Sans", 9);
    for (int i = 0; i < 1000; ++i) {
        labelledInTurn(QString::number(i)).textSize(font);
    }

    const QSizeF wide = labelledInTurn("1000000").textSize(font);

    QCOMPARE(wide, QSizeF(labelled("1000000").textSize(font)));
    QCOMPARE(QSizeF(labelledInTurn("1").textSize(font)), QSizeF(labelled("1").textSize(font)));
}

void LabelEngineTest::measuresTextsWithFlagsByTheirFlags()
{
    const QFont font("DejaVu Sans", 9);
    const QString text("one\ntwo");
    labelledInTurn(text).textSize(font);
    QwtText plain = labelled(text);
    plain.setRenderFlags(Qt::TextSingleLine);
    QwtText label = labelledInTurn(text);

    label.setRenderFlags(Qt::TextSingleLine);

    QCOMPARE(QSizeF(label.textSize(font)), QSizeF(plain.textSize(font)));
}

void LabelEngineTest::leavesTextsToQwtBeforeAndAfterATurn()
{
    QVERIFY(isQwtsOwn(QwtText("12:05")));

    labelledInTurn("12:05");

    QVERIFY(isQwtsOwn(QwtText("12:05")));
}

void LabelEngineTest::takesTextsInATurn()
{
    const LabelEngine::Turn turn;

    QVERIFY(!isQwtsOwn(QwtText("12:05")));
}

void LabelEngineTest::staysForTheOuterTurn()
{
    const LabelEngine::Turn turn;

    labelledInTurn("12:05");

    QVERIFY(!isQwtsOwn(QwtText("12:05")));
}

void LabelEngineTest::leavesMarkupToQwt()
{
    const QString markup("<b>bold</b>");
    const LabelEngine::Turn turn;

    QVERIFY(QwtText(markup) == QwtText(markup, QwtText::RichText));
}

void LabelEngineTest::comesAfterTheEnginesOfTheApplication()
{
    const LabelEngine::Turn turn;
    const QwtText before = labelled("12:05");
    QwtText::setTextEngine(QwtText::OtherFormat, new QwtPlainTextEngine);

    const QwtText after("12:05");

    QVERIFY(after == QwtText("12:05", QwtText::OtherFormat));
    QVERIFY(!before.textSize(QFont("DejaVu Sans", 9)).isEmpty()); // its engine is still there
    QwtText::setTextEngine(QwtText::OtherFormat, nullptr);
}

void LabelEngineTest::leavesTheEnginesOfTheApplicationInPlace()
{
    const LabelEngine::Turn turn;

    QVERIFY(QwtText::textEngine(applicationsFormat) == applicationsEngine);
}

TESSALINE_TEST_MAIN(LabelEngineTest)
#include "tst_labelengine.moc"
