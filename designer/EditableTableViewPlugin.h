// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_EDITABLETABLEVIEWPLUGIN_H
#define TESSALINE_EDITABLETABLEVIEWPLUGIN_H

#include <QDesignerCustomWidgetInterface>
#include <QObject>

/// Describes EditableTableView to Qt Designer.
class EditableTableViewPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit EditableTableViewPlugin(QObject *parent = nullptr);
    ~EditableTableViewPlugin() override;

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface *formEditor) override;
    QString domXml() const override;

private:
    bool initialized;
};

#endif
