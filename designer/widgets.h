#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <vector>

/// A widget of the library as Qt Designer offers it.
struct OfferedWidget
{
    const char* name; ///< of the class, with its namespace
    const char* header;
    const char* tip;
    QSize size;
    QWidget* (*create)(QWidget* parent);
};

/// All that a form may hold: the tool and the controls.
const std::vector<OfferedWidget>& offeredWidgets();

/// One of them for Qt Designer, which shows them in a group of their own.
class WidgetOffer : public QDesignerCustomWidgetInterface
{
public:
    explicit WidgetOffer(const OfferedWidget& widget);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    /// An object of that class in a new form, in the size that it has there at first.
    QString domXml() const override;

private:
    const OfferedWidget& m_widget;
};
