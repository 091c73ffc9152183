// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CheckItemDelegate.h"
#include "DisguisedModel.h"
#include "EditorFixture.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QCheckBox>
#include <QColor>
#include <QImage>
#include <QKeySequence>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleOptionButton>

namespace {

const QRect cellRect(3, 2, 90, 24);

/// What the style alone draws for a check box in this state.
QImage drawnByStyle(const QString &label, bool checked)
{
    QImage image(100, 30, QImage::Format_RGB32);
    image.fill(0xff00ff);
    QPainter painter(&image);
    QStyle *style = QApplication::style();
    painter.fillRect(cellRect, style->standardPalette().color(QPalette::Window));
    QStyleOptionButton option;
    option.rect = cellRect;
    option.text = label;
    option.state = QStyle::State_Enabled | (checked ? QStyle::State_On : QStyle::State_Off);
    option.features = QStyleOptionButton::Flat;
    style->drawControl(QStyle::CE_CheckBox, &option, &painter);
    return image;
}

QImage drawnByDelegate(const CheckItemDelegate &delegate, QStyleOptionViewItem option,
                       const QModelIndex &index)
{
    QImage image(100, 30, QImage::Format_RGB32);
    image.fill(0xff00ff);
    QPainter painter(&image);
    option.rect = cellRect;
    delegate.paint(&painter, option, index);
    return image;
}

/// Notes what a delegate asks the application's style to draw.
class NotingStyle : public QProxyStyle
{
public:
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        if (element == CE_CheckBox) {
            drawn = *qstyleoption_cast<const QStyleOptionButton *>(option);
            drawnFor = widget;
            ++checkBoxes;
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    mutable QStyleOptionButton drawn;
    mutable const QWidget *drawnFor = nullptr;
    mutable int checkBoxes = 0;
};

class GermanLabels : public compat::Translator
{
protected:
    QString find(const QByteArray &context, const QByteArray &source) const override
    {
        const bool isOurs = context == "CheckItemDelegate" && source == "Verify";
        return isOurs ? QString::fromUtf8("Pr\xc3\xbc"
                                          "fen")
                      : QString();
    }
};

} // namespace

class CheckItemDelegateTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void opensACheckBoxOverTheCell();
    void anyTextCountsAsChecked_data();
    void anyTextCountsAsChecked();
    void writesOnlyAChangedState_data();
    void writesOnlyAChangedState();
    void paintsWhatTheStyleDraws_data();
    void paintsWhatTheStyleDraws();
    void paintsWhatACellHoldsNotWhatItShows();
    void asksTheStyleForAFlatEnabledCheckBox();
    void paintsTheSameWhateverTheViewLooksLike();
    void paintsTheSameInADarkApplication();
    void paintsTheWholeCellOfAView();
    void translatesItsLabelWheneverItIsShown();
    void showsALabelInLatin1_data();
    void showsALabelInLatin1();
    void hasTheShortcutThatItsLabelNames();
    void leavesAForeignEditorAlone();
};

void CheckItemDelegateTest::opensACheckBoxOverTheCell()
{
    EditorFixture fixture("checkbox: Verify ");

    QCheckBox *box = qobject_cast<QCheckBox *>(fixture.open(0, 2));

    QVERIFY(box);
    QCOMPARE(box->text(), QString("Verify"));
    verifyDressed(&fixture, box, 0, 2, "EditableTableViewCheckBox column2");
}

void CheckItemDelegateTest::anyTextCountsAsChecked_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("checked");

    QTest::newRow("nothing") << QVariant() << false;
    QTest::newRow("empty") << QVariant(QString("")) << false;
    QTest::newRow("1") << QVariant(QString("1")) << true;
    QTest::newRow("0") << QVariant(QString("0")) << true;
    QTest::newRow("word false") << QVariant(QString("false")) << true;
    QTest::newRow("blank") << QVariant(QString(" ")) << true;
    QTest::newRow("boolean false") << QVariant(false) << true;
    QTest::newRow("number 0") << QVariant(0) << true;
}

void CheckItemDelegateTest::anyTextCountsAsChecked()
{
    QFETCH(QVariant, stored);
    EditorFixture fixture("checkbox");

    QCheckBox *box = qobject_cast<QCheckBox *>(fixture.open(0, 0, stored));

    QVERIFY(box);
    QTEST(box->isChecked(), "checked");
}

void CheckItemDelegateTest::writesOnlyAChangedState_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("toggles");
    QTest::addColumn<QString>("writes");
    QTest::addColumn<QString>("result");

    QTest::newRow("check the empty") << "" << 1 << "edit 1"
                                     << "1";
    QTest::newRow("uncheck 1") << "1" << 1 << "edit "
                               << "";
    QTest::newRow("uncheck 0") << "0" << 1 << "edit "
                               << "";
    QTest::newRow("leave true") << "true" << 0 << ""
                                << "true";
    QTest::newRow("leave the empty") << "" << 0 << ""
                                     << "";
    QTest::newRow("toggle yes twice") << "yes" << 2 << ""
                                      << "yes";
}

void CheckItemDelegateTest::writesOnlyAChangedState()
{
    QFETCH(QString, stored);
    QFETCH(int, toggles);
    EditorFixture fixture("checkbox");
    QWidget *box = fixture.open(0, 0, stored);
    QVERIFY(box);
    for (int i = 0; i < toggles; ++i) {
        QTest::keyClick(box, Qt::Key_Space);
    }

    commitEditor(box);

    QTEST(fixture.model.writes.join("|"), "writes");
    QTEST(fixture.cell(0, 0).toString(), "result");
}

void CheckItemDelegateTest::paintsWhatTheStyleDraws_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("label");
    QTest::addColumn<bool>("checked");

    QTest::newRow("checked") << "1"
                             << "Verify" << true;
    QTest::newRow("checked by 0") << "0"
                                  << "Verify" << true;
    QTest::newRow("unchecked") << ""
                               << "Verify" << false;
    QTest::newRow("without label") << "1"
                                   << "" << true;
}

void CheckItemDelegateTest::paintsWhatTheStyleDraws()
{
    QFETCH(QString, stored);
    QFETCH(QString, label);
    QFETCH(bool, checked);
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), stored);
    const CheckItemDelegate delegate(label);

    const QImage drawn = drawnByDelegate(delegate, QStyleOptionViewItem(), model.index(0, 0));

    QCOMPARE(drawn, drawnByStyle(label, checked));
    QVERIFY(drawn != drawnByStyle(label, !checked));
}

void CheckItemDelegateTest::paintsWhatACellHoldsNotWhatItShows()
{
    const DisguisedModel model("");
    const CheckItemDelegate delegate("Verify");

    const QImage drawn = drawnByDelegate(delegate, QStyleOptionViewItem(), model.index(0, 0));

    QCOMPARE(drawn, drawnByStyle("Verify", false));
}

void CheckItemDelegateTest::asksTheStyleForAFlatEnabledCheckBox()
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), "0");
    const CheckItemDelegate delegate("Verify");
    const QString previousStyle = QApplication::style()->objectName();
    NotingStyle *style = new NotingStyle; // the application owns its style
    QApplication::setStyle(style);

    drawnByDelegate(delegate, QStyleOptionViewItem(), model.index(0, 0));

    const QStyleOptionButton drawn = style->drawn;
    QCOMPARE(style->checkBoxes, 1);
    QVERIFY(!style->drawnFor);
    QApplication::setStyle(previousStyle);
    QCOMPARE(int(drawn.features), int(QStyleOptionButton::Flat));
    QCOMPARE(int(drawn.state), int(QStyle::State_Enabled | QStyle::State_On));
    QCOMPARE(drawn.rect, cellRect);
    QCOMPARE(drawn.text, QString("Verify"));
}

void CheckItemDelegateTest::paintsTheSameWhateverTheViewLooksLike()
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), "1");
    model.setData(model.index(0, 0), QColor(Qt::red), Qt::BackgroundRole);
    model.setData(model.index(0, 0), Qt::Unchecked, Qt::CheckStateRole);
    const CheckItemDelegate delegate("Verify");
    QStyleOptionViewItem option;
    option.state = QStyle::State_Selected | QStyle::State_HasFocus;
    option.palette = QPalette(Qt::green);
    option.font.setPointSize(40);
    option.direction = Qt::RightToLeft;

    const QImage drawn = drawnByDelegate(delegate, option, model.index(0, 0));

    QCOMPARE(drawn, drawnByStyle("Verify", true));
}

void CheckItemDelegateTest::paintsTheSameInADarkApplication()
{
    QStandardItemModel model(1, 1);
    const CheckItemDelegate delegate("Verify");
    const QImage light = drawnByDelegate(delegate, QStyleOptionViewItem(), model.index(0, 0));
    const QPalette previous = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(50, 50, 50)));

    const QImage drawn = drawnByDelegate(delegate, QStyleOptionViewItem(), model.index(0, 0));

    QApplication::setPalette(previous);
    QCOMPARE(drawn, light);
}

void CheckItemDelegateTest::paintsTheWholeCellOfAView()
{
    EditorFixture fixture("checkbox");
    fixture.view.setShowGrid(false);
    fixture.view.selectAll();
    const QColor window = QApplication::style()->standardPalette().color(QPalette::Window);

    const QRect cell = fixture.view.visualRect(fixture.model.index(1, 2));

    QCOMPARE(colorAt(fixture.view.viewport(), cell.topLeft()), window);
    QCOMPARE(colorAt(fixture.view.viewport(), cell.bottomRight()), window);
}

void CheckItemDelegateTest::translatesItsLabelWheneverItIsShown()
{
    QStandardItemModel model(1, 1);
    const CheckItemDelegate delegate("Verify");
    GermanLabels german;
    QCoreApplication::installTranslator(&german);

    const QImage drawn = drawnByDelegate(delegate, QStyleOptionViewItem(), model.index(0, 0));
    QWidget parent;
    QCheckBox *box = qobject_cast<QCheckBox *>(
        delegate.createEditor(&parent, QStyleOptionViewItem(), model.index(0, 0)));

    QCoreApplication::removeTranslator(&german);
    QVERIFY(box);
    QCOMPARE(box->text(),
             QString::fromUtf8("Pr\xc3\xbc"
                               "fen"));
    QCOMPARE(drawn,
             drawnByStyle(QString::fromUtf8("Pr\xc3\xbc"
                                            "fen"),
                          false));
}

void CheckItemDelegateTest::showsALabelInLatin1_data()
{
    QTest::addColumn<QString>("declared");
    QTest::addColumn<QString>("shown");

    QTest::newRow("Latin-1") << QString::fromUtf8("Gr\xc3\xb6\xc3\x9f"
                                                  "e")
                             << QString::fromUtf8("Gr\xc3\xb6\xc3\x9f"
                                                  "e");
    QTest::newRow("beyond") << QString::fromUtf8("\xd0\x94\xd0\xb0!") << "\?\?!";
}

void CheckItemDelegateTest::showsALabelInLatin1()
{
    QFETCH(QString, declared);
    EditorFixture fixture("checkbox:" + declared);

    QCheckBox *box = qobject_cast<QCheckBox *>(fixture.open(0, 0));

    QVERIFY(box);
    QTEST(box->text(), "shown");
}

void CheckItemDelegateTest::leavesAForeignEditorAlone()
{
    verifyLeavesForeignEditorAlone("checkbox");
}

void CheckItemDelegateTest::hasTheShortcutThatItsLabelNames()
{
    EditorFixture fixture("checkbox:&Verify");

    QCheckBox *box = qobject_cast<QCheckBox *>(fixture.open(0, 0));

    QVERIFY(box);
    QCOMPARE(box->text(), QString("&Verify"));
    QCOMPARE(box->shortcut(), QKeySequence("Alt+V"));
}

TESSALINE_TEST_MAIN(CheckItemDelegateTest)
#include "tst_checkitemdelegate.moc"
