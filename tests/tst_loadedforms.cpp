// SPDX-License-Identifier: LGPL-3.0-or-later
// Forms that are loaded at run time, with the widgets of the plug-in.
#include "EditableTableView.h"
#include "SpinBox.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QFile>
#include <QImage>
#include <QPushButton>
#include <QScopedPointer>
#include <QStandardItemModel>
#include <QUiLoader>

namespace {

QStringList offered()
{
    QStringList result = QStringList() << "EditableTableView"
                                       << "SpinBox";
#ifdef TESSALINE_HAS_PLOT
    result << "UpdatablePlot";
#endif
    return result;
}

/// A form loader that knows no plug-ins but that of the build, where a program that links the
/// library finds the very one that it links.
class FormLoader : public QUiLoader
{
public:
    FormLoader()
    {
        clearPluginPaths();
        addPluginPath(QString::fromUtf8(TESSALINE_PLUGIN_FOLDER));
    }

    QWidget *loadForm()
    {
        QFile file(QString::fromUtf8(TESSALINE_FORM));
        return file.open(QIODevice::ReadOnly) ? load(&file) : nullptr;
    }
};

} // namespace

class LoadedFormsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void offersItsWidgetsToForms();
    void createsWidgetsForForms_data();
    void createsWidgetsForForms();
    void loadsAForm();
    void worksInALoadedForm();
#ifdef TESSALINE_HAS_PLOT
    void drivesAChartByItsMetaObject();
#endif
};

void LoadedFormsTest::offersItsWidgetsToForms()
{
    const FormLoader loader;
    const QStringList available = loader.availableWidgets();

    for (const QString &name : offered()) {
        QVERIFY2(available.contains(name), qPrintable(name));
    }
    QVERIFY(!available.contains("FileListTableView"));
}

void LoadedFormsTest::createsWidgetsForForms_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : offered()) {
        QTest::newRow(name.toLatin1().constData()) << name;
    }
}

void LoadedFormsTest::createsWidgetsForForms()
{
    QFETCH(QString, name);
    FormLoader loader;
    QWidget parent;

    const QWidget *widget = loader.createWidget(name, &parent, "widget");

    QVERIFY(widget);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), name);
    QCOMPARE(widget->objectName(), QString("widget"));
}

void LoadedFormsTest::loadsAForm()
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

void LoadedFormsTest::worksInALoadedForm()
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
void LoadedFormsTest::drivesAChartByItsMetaObject()
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

TESSALINE_TEST_MAIN(LoadedFormsTest)

#include "tst_loadedforms.moc"
