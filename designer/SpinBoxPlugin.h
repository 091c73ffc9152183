// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_SPINBOXPLUGIN_H
#define TESSALINE_SPINBOXPLUGIN_H

#include <QDesignerCustomWidgetInterface>
#include <QObject>

/// Describes SpinBox to Qt Designer.
class SpinBoxPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit SpinBoxPlugin(QObject *parent = nullptr);
    ~SpinBoxPlugin() override;

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
