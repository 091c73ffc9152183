// SPDX-License-Identifier: LGPL-3.0-or-later
// Drives the shared library as Designer and the run-time form loader do: from its file.
#include "EditableTableView.h"
#include "SpinBox.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QDesignerCustomWidgetCollectionInterface>
#include <QFile>
#include <QImage>
#include <QLibrary>
#include <QPluginLoader>
#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QStandardItemModel>
#include <QUiLoader>

namespace {

QString pluginFile()
{
    return QString::fromUtf8(TESSALINE_PLUGIN_FILE);
}

QStringList offered()
{
    QStringList result = QStringList() << "EditableTableView"
                                       << "SpinBox";
#ifdef TESSALINE_HAS_PLOT
    result << "UpdatablePlot";
#endif
    return result;
}

/// A form loader that knows no plug-ins but those of the build.
class FormLoader : public QUiLoader
{
public:
    FormLoader()
    {
        clearPluginPaths();
        addPluginPath(QString::fromUtf8(TESSALINE_PLUGIN_PATH) + QLatin1String("/designer"));
    }

    QWidget *loadForm()
    {
        QFile file(QString::fromUtf8(TESSALINE_FORM));
        return file.open(QIODevice::ReadOnly) ? load(&file) : nullptr;
    }
};

} // namespace

class PluginTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void loadsAsAPlugin();
    void exportsItsEntryPoints();
    void givesACollectionOfItsWidgets();
    void isTheLibraryThatIsLinked();
    void remakesADeletedInstance();
    void offersItsWidgetsToForms();
    void createsWidgetsForForms_data();
    void createsWidgetsForForms();
    void loadsAForm();
    void worksInALoadedForm();
#ifdef TESSALINE_HAS_PLOT
    void drivesAChartByItsMetaObject();
#endif
};

void PluginTest::loadsAsAPlugin()
{
    QPluginLoader loader(pluginFile());

    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    QVERIFY(loader.instance());
}

void PluginTest::exportsItsEntryPoints()
{
    QVERIFY(QLibrary::resolve(pluginFile(), "qt_plugin_instance"));
    QVERIFY(QLibrary::resolve(pluginFile(), "qt_plugin_query_verification_data"));
}

void PluginTest::givesACollectionOfItsWidgets()
{
    QPluginLoader loader(pluginFile());
    const QDesignerCustomWidgetCollectionInterface *collection
        = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    QVERIFY(collection);

    QStringList names;
    for (const QDesignerCustomWidgetInterface *descriptor : collection->customWidgets()) {
        names.append(descriptor->name());
    }

    names.sort();
    QCOMPARE(names, offered());
}

void PluginTest::isTheLibraryThatIsLinked()
{
    FormLoader loader;

    const QScopedPointer<QWidget> widget(loader.createWidget("SpinBox"));

    QCOMPARE(widget->metaObject(), &SpinBox::staticMetaObject);
}

void PluginTest::remakesADeletedInstance()
{
    QPluginLoader loader(pluginFile());
    const QPointer<QObject> first = loader.instance();
    QCOMPARE(loader.instance(), first.data());
    delete first;

    QObject *second = loader.instance();

    QVERIFY(qobject_cast<QDesignerCustomWidgetCollectionInterface *>(second));
}

void PluginTest::offersItsWidgetsToForms()
{
    const FormLoader loader;
    const QStringList available = loader.availableWidgets();

    for (const QString &name : offered()) {
        QVERIFY2(available.contains(name), qPrintable(name));
    }
    QVERIFY(!available.contains("FileListTableView"));
}

void PluginTest::createsWidgetsForForms_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : offered()) {
        QTest::newRow(name.toLatin1().constData()) << name;
    }
}

void PluginTest::createsWidgetsForForms()
{
    QFETCH(QString, name);
    FormLoader loader;
    QWidget parent;

    const QWidget *widget = loader.createWidget(name, &parent, "widget");

    QVERIFY(widget);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), name);
    QCOMPARE(widget->objectName(), QString("widget"));
}

void PluginTest::loadsAForm()
{
    FormLoader loader;

    const QScopedPointer<QWidget> form(loader.loadForm());

    QVERIFY(!form.isNull());
    const EditableTableView *jobs = form->findChild<EditableTableView *>("jobs");
    QVERIFY(jobs);
    QCOMPARE(jobs->getColumns(),
             QStringList() << "editbox"
                           << "combobox"
                           << "checkbox:Verify"
                           << "button:Run");
    const SpinBox *limit = form->findChild<SpinBox *>("limit");
    QVERIFY(limit);
    QCOMPARE(limit->value(), 20);
}

void PluginTest::worksInALoadedForm()
{
    FormLoader loader;
    const QScopedPointer<QWidget> form(loader.loadForm());
    EditableTableView *jobs = form->findChild<EditableTableView *>("jobs");
    QStandardItemModel model(2, 4);
    model.setData(model.index(1, 0), "documents");
    jobs->setModel(&model);
    showWindow(form.data(), 500, 400);
    QSignalSpy clicks(jobs, SIGNAL(buttonClicked(QWidget *, int, int, QStringList)));

    QTest::mouseClick(jobs->button(1, 3), Qt::LeftButton);

    QCOMPARE(clicks.size(), 1);
    QCOMPARE(clicks.at(0).at(3).toStringList(),
             QStringList() << "documents"
                           << ""
                           << "");
}

#ifdef TESSALINE_HAS_PLOT
void PluginTest::drivesAChartByItsMetaObject()
{
    FormLoader loader;
    const QScopedPointer<QWidget> form(loader.loadForm());
    QWidget *chart = form->findChild<QWidget *>("throughput");
    QVERIFY(chart);
    QCOMPARE(QString::fromLatin1(chart->metaObject()->className()), QString("UpdatablePlot"));
    showWindow(form.data(), 500, 400);
    const QImage before = compat::grab(chart).toImage();

    QVERIFY(QMetaObject::invokeMethod(chart, "updateData", Q_ARG(QVariant, 5000000)));

    QTRY_VERIFY(compat::grab(chart).toImage() != before);
    QCOMPARE(chart->property("curveColor").toString(), QString("#4682b4"));
    QCOMPARE(chart->property("yTitle").toString(), QString("Copied a second"));
}
#endif

TESSALINE_TEST_MAIN(PluginTest)

#include "tst_plugin.moc"
