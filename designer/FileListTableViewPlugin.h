// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_FILELISTTABLEVIEWPLUGIN_H
#define TESSALINE_FILELISTTABLEVIEWPLUGIN_H

#include <QDesignerCustomWidgetInterface>
#include <QObject>

/// Describes FileListTableView to Qt Designer, which is never told of it: the list needs its model
/// before it is first shown, and a form cannot give it one. Programs create it themselves.
class FileListTableViewPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit FileListTableViewPlugin(QObject *parent = nullptr);
    ~FileListTableViewPlugin() override;

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
