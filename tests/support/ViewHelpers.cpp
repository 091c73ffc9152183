// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ViewHelpers.h"

#include "QtCompat.h"
#include "TestCompat.h"

#include <QApplication>
#include <QColor>
#include <QImage>
#include <QPointF>
#include <QPushButton>
#include <QTableView>

void showWindow(QWidget *window, int width, int height)
{
    window->resize(width, height);
    window->show();
    compat::waitUntilShown(window);
    compat::activate(window);
    window->setFocus();
    QTRY_VERIFY(QApplication::focusWidget() != nullptr);
}

QString widths(const QTableView &view)
{
    QStringList parts;
    for (int column = 0; column < view.model()->columnCount(); ++column) {
        parts.append(QString::number(view.horizontalHeader()->sectionSize(column)));
    }
    return parts.join(QLatin1String(","));
}

void setWidths(QTableView *view, const QString &text)
{
    QHeaderView *header = view->horizontalHeader();
    const bool wasBlocked = header->blockSignals(true);
    const QStringList parts = text.split(QLatin1Char(','));
    for (int column = 0; column < parts.size(); ++column) {
        compat::resizeSection(header, column, parts.at(column).toInt());
    }
    header->blockSignals(wasBlocked);
}

QString buttonMarks(const QTableView &view, int column)
{
    QString marks;
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        const bool filled = view.indexWidget(view.model()->index(row, column)) != nullptr;
        marks.append(QLatin1Char(filled ? 'x' : '.'));
    }
    return marks;
}

QString texts(const QAbstractItemModel &model, int column)
{
    QStringList parts;
    for (int row = 0; row < model.rowCount(); ++row) {
        parts.append(model.index(row, column).data(Qt::EditRole).toString());
    }
    return parts.join(QLatin1String(","));
}

int buttonCount(const QAbstractItemView &view)
{
    compat::deliverDeferredDeletes();
    return int(view.viewport()->findChildren<QPushButton *>().size());
}

QString labelOfButton(const QAbstractItemView &view)
{
    const QList<QPushButton *> buttons = view.viewport()->findChildren<QPushButton *>();
    return buttons.isEmpty() ? QString("none") : buttons.last()->text();
}

QColor colorAt(QWidget *widget, const QPoint &place)
{
    const QImage image = compat::grab(widget).toImage();
    const double scale = double(image.width()) / widget->width();
    return QColor(image.pixel((QPointF(place) * scale).toPoint()));
}

QWidget *openEditor(QTableView *view, const QModelIndex &index)
{
    view->setCurrentIndex(index);
    QTest::keyClick(view, Qt::Key_F2);
    return view->indexWidget(index);
}

void commitEditor(QWidget *editor)
{
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents(); // the delegate commits by a queued call
    compat::deliverDeferredDeletes();
}

void goThroughEvents()
{
    QCoreApplication::processEvents();
    compat::deliverDeferredDeletes();
}

void use(QTableView *view)
{
    view->resize(view->width() + 30, view->height());
    goThroughEvents();
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_F2);
    QTest::mouseClick(view->viewport(), Qt::LeftButton);
    QTest::mouseClick(view->horizontalHeader()->viewport(), Qt::LeftButton);
    compat::grab(view);
    goThroughEvents();
}
