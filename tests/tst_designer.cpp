// SPDX-License-Identifier: LGPL-3.0-or-later
// The library in Designer itself: in the components that the program is made of.
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerMetaDataBaseInterface>
#include <QtDesigner/QDesignerObjectInspectorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>
#include <QtDesigner/QDesignerWidgetFactoryInterface>
#include <QtDesigner/QExtensionManager>

#include <QDomDocument>
#include <QFile>
#include <QScopedPointer>

namespace {

/// Designer as far as it takes to load plug-ins and edit forms.
class Designer
{
public:
    Designer()
        : core(QDesignerComponents::createFormEditor(nullptr))
        , widgetBox(QDesignerComponents::createWidgetBox(core.data(), nullptr))
        , properties(QDesignerComponents::createPropertyEditor(core.data(), nullptr))
        , objects(QDesignerComponents::createObjectInspector(core.data(), nullptr))
    {
        core->setWidgetBox(widgetBox.data());
        core->setPropertyEditor(properties.data());
        core->setObjectInspector(objects.data());
        new QDesignerIntegration(core.data(), core.data());
        QDesignerComponents::initializePlugins(core.data());
    }

    const QDesignerWidgetDataBaseItemInterface *entry(const QString &className) const
    {
        const QDesignerWidgetDataBaseInterface *classes = core->widgetDataBase();
        return classes->item(classes->indexOfClassName(className));
    }

    QDesignerWidgetBoxInterface::Category group(const QString &name) const
    {
        for (int i = 0; i < widgetBox->categoryCount(); ++i) {
            if (widgetBox->category(i).name() == name) {
                return widgetBox->category(i);
            }
        }
        return QDesignerWidgetBoxInterface::Category();
    }

    QDesignerFormWindowInterface *open(const QString &content) const
    {
        QDesignerFormWindowInterface *form = core->formWindowManager()->createFormWindow();
        form->setContents(content);
        return form;
    }

    QDesignerPropertySheetExtension *propertiesOf(QObject *object) const
    {
        return qt_extension<QDesignerPropertySheetExtension *>(core->extensionManager(), object);
    }

    QScopedPointer<QDesignerFormEditorInterface> core;
    QScopedPointer<QDesignerWidgetBoxInterface> widgetBox;
    QScopedPointer<QDesignerPropertyEditorInterface> properties;
    QScopedPointer<QDesignerObjectInspectorInterface> objects;
};

QString formText()
{
    QFile file(QString::fromUtf8(TESSALINE_FORM));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// What a form says of the properties of one widget: name, value and whether it is translated.
QStringList savedProperties(const QString &form, const QString &objectName)
{
    QDomDocument document;
    document.setContent(form);
    QStringList result;
    const QDomNodeList widgets = document.elementsByTagName("widget");
    for (int i = 0; i < widgets.size(); ++i) {
        if (widgets.at(i).toElement().attribute("name") != objectName) {
            continue;
        }
        QDomElement property = widgets.at(i).firstChildElement("property");
        for (; !property.isNull(); property = property.nextSiblingElement("property")) {
            const QDomElement value = property.firstChildElement();
            result.append(property.attribute("name") + '=' + property.text()
                          + (value.attribute("notr") == "true" ? " notr" : ""));
        }
    }
    return result;
}

} // namespace

class DesignerTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void listsTheWidgetsInTheirGroup();
    void knowsEachWidget_data();
    void knowsEachWidget();
    void offersThePropertiesOfEachWidget_data();
    void offersThePropertiesOfEachWidget();
    void createsEachWidget_data();
    void createsEachWidget();
    void keepsAllPropertiesOfAForm_data();
    void keepsAllPropertiesOfAForm();
    void savesAChangedProperty();
    void savesWhatTheWidgetBoxMakes();

private:
    QScopedPointer<Designer> designer;
};

void DesignerTest::initTestCase()
{
    QDesignerComponents::initializeResources();
    designer.reset(new Designer);
}

void DesignerTest::listsTheWidgetsInTheirGroup()
{
    const QDesignerWidgetBoxInterface::Category group = designer->group("Vantrel Extra");

    QStringList names;
    for (int i = 0; i < group.widgetCount(); ++i) {
        names.append(group.widget(i).name());
    }

    QStringList offered("EditableTableView");
#ifdef TESSALINE_HAS_PLOT
    offered << "UpdatablePlot";
#endif
    offered << "SpinBox";
    QCOMPARE(names, offered);
}

void DesignerTest::knowsEachWidget_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("table") << "EditableTableView"
                           << "QTableView"
                           << "Editable Table View";
#ifdef TESSALINE_HAS_PLOT
    QTest::newRow("chart") << "UpdatablePlot"
                           << "QwtPlot"
                           << "Data Plot";
#endif
    QTest::newRow("spin box") << "SpinBox"
                              << "QSpinBox"
                              << "Spin Box";
}

void DesignerTest::knowsEachWidget()
{
    QFETCH(QString, className);
    QFETCH(QString, base);
    QFETCH(QString, toolTip);

    const QDesignerWidgetDataBaseItemInterface *entry = designer->entry(className);

    QVERIFY(entry);
    QVERIFY(entry->isCustom());
    QVERIFY(!entry->isContainer());
    QCOMPARE(entry->group(), QString("Vantrel Extra"));
    QCOMPARE(entry->toolTip(), toolTip);
    QCOMPARE(entry->whatsThis(), toolTip);
    QCOMPARE(entry->includeFile(), className + ".h");
    QCOMPARE(entry->extends(), base);
}

void DesignerTest::offersThePropertiesOfEachWidget_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("table") << "EditableTableView"
                           << (QStringList() << "columns"
                                             << "stretchSection");
#ifdef TESSALINE_HAS_PLOT
    QTest::newRow("chart") << "UpdatablePlot"
                           << (QStringList() << "bgColor"
                                             << "curveColor"
                                             << "xTitle"
                                             << "yTitle");
#endif
    QTest::newRow("spin box") << "SpinBox" << (QStringList() << "value");
}

void DesignerTest::offersThePropertiesOfEachWidget()
{
    QFETCH(QString, className);
    QFETCH(QStringList, names);
    const QScopedPointer<QWidget> widget(
        designer->core->widgetFactory()->createWidget(className, nullptr));

    const QDesignerPropertySheetExtension *sheet = designer->propertiesOf(widget.data());

    for (const QString &name : names) {
        const int place = sheet->indexOf(name);
        QVERIFY2(place >= 0, qPrintable(name));
        QVERIFY2(sheet->isVisible(place), qPrintable(name));
    }
}

void DesignerTest::createsEachWidget_data()
{
    knowsEachWidget_data();
}

void DesignerTest::createsEachWidget()
{
    QFETCH(QString, className);
    QWidget form;

    const QWidget *widget = designer->core->widgetFactory()->createWidget(className, &form);

    QVERIFY(widget);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), className);
    showWindow(&form, 200, 200);
}

void DesignerTest::keepsAllPropertiesOfAForm_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<int>("count");
    QTest::newRow("table") << "jobs" << 2;
#ifdef TESSALINE_HAS_PLOT
    QTest::newRow("chart") << "throughput" << 4;
#endif
    QTest::newRow("spin box") << "limit" << 2;
}

void DesignerTest::keepsAllPropertiesOfAForm()
{
    QFETCH(QString, objectName);
    QFETCH(int, count);
    const QString before = formText();
    const QScopedPointer<QDesignerFormWindowInterface> form(designer->open(before));

    const QString after = form->contents();

    QCOMPARE(savedProperties(before, objectName).size(), count);
    // Colours are saved by their number.
    QCOMPARE(savedProperties(after, objectName),
             savedProperties(before, objectName).replaceInStrings("steelblue", "#4682b4"));
    QVERIFY(after.contains("<header>EditableTableView.h</header>"));
}

void DesignerTest::savesAChangedProperty()
{
    const QScopedPointer<QDesignerFormWindowInterface> form(designer->open(formText()));
    QWidget *jobs = form->mainContainer()->findChild<QWidget *>("jobs");
    QVERIFY(jobs);

    form->cursor()->setWidgetProperty(jobs, "stretchSection", 2);

    QCOMPARE(jobs->property("stretchSection").toInt(), 2);
    QVERIFY(savedProperties(form->contents(), "jobs").contains("stretchSection=2"));
}

void DesignerTest::savesWhatTheWidgetBoxMakes()
{
    const QDesignerWidgetBoxInterface::Category group = designer->group("Vantrel Extra");
    for (int i = 0; i < group.widgetCount(); ++i) {
        const QString element = group.widget(i).domXml();
        QVERIFY2(element.contains("<widget class=\"" + group.widget(i).name() + "\""),
                 qPrintable(element));
        QVERIFY2(element.contains("<property name=\"geometry\">"), qPrintable(element));
    }
}

TESSALINE_TEST_MAIN(DesignerTest)

#include "tst_designer.moc"
