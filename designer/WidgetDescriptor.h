// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_WIDGETDESCRIPTOR_H
#define TESSALINE_WIDGETDESCRIPTOR_H

#include <QDesignerCustomWidgetInterface>
#include <QObject>

/// What the library's widgets have in common for Qt Designer. A derived class says what its widget
/// has of its own: name(), toolTip(), createWidget() and domXml().
///
/// Without a meta-object, so that descriptors look as if each were derived from QObject and from
/// Designer's interface itself.
class WidgetDescriptor : public QObject, public QDesignerCustomWidgetInterface
{
public:
    /// Casts to Designer's interface by the name of its class, as moc does for direct bases.
    void *qt_metacast(const char *className) override;

    QString group() const override;

    /// The same as toolTip().
    QString whatsThis() const override;

    /// The widget's public header: named like its class, and in no folder.
    QString includeFile() const override;

    /// Null: Designer shows an icon of its own.
    QIcon icon() const override;

    bool isContainer() const override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface *formEditor) override;

protected:
    explicit WidgetDescriptor(QObject *parent);

private:
    bool initialized;
};

#endif
