// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_UPDATABLEPLOTPLUGIN_H
#define TESSALINE_UPDATABLEPLOTPLUGIN_H

#include <QDesignerCustomWidgetInterface>
#include <QObject>

/// Describes UpdatablePlot to Qt Designer.
class UpdatablePlotPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit UpdatablePlotPlugin(QObject *parent = nullptr);
    ~UpdatablePlotPlugin() override;

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
