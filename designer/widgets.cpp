#include "widgets.h"

#include <combobox.h>
#include <imagewidget.h>
#include <lineedit.h>
#include <propertybox.h>
#include <searchedit.h>
#include <spineditbox.h>
#include <vlineedit.h>
#include <vtestcharttools.h>

#include <QIcon>

using namespace vardeno::testcharttools;

namespace {

constexpr QSize entrySize(120, 28);

template <typename Widget>
QWidget* create(QWidget* parent)
{
    return new Widget(parent);
}

} // namespace

const std::vector<OfferedWidget>& offeredWidgets()
{
#define VD_OFFER(Class, header, tip, size)                                                                   \
    {                                                                                                        \
        "vardeno::testcharttools::" #Class, header, tip, size, &create<Class>                                \
    }
    static const std::vector<OfferedWidget> all = {
        VD_OFFER(VTestChartTools, "vtestcharttools.h", "The editor of test charts", QSize(1610, 803)),
        VD_OFFER(VLineEdit, "vlineedit.h", "A number that may be calculated", entrySize),
        VD_OFFER(SpinEditBox, "spineditbox.h", "A number with its range and unit", entrySize),
        VD_OFFER(SearchEdit, "searchedit.h", "A text to search for, with a button that clears it", entrySize),
        VD_OFFER(LineEdit, "lineedit.h", "A text whose history its owner keeps", entrySize),
        VD_OFFER(ComboBox, "combobox.h", "A choice", entrySize),
        VD_OFFER(ImageWidget, "imagewidget.h", "A picture", QSize(160, 90)),
        VD_OFFER(PropertyBox, "propertybox.h", "Sections that open and close", QSize(380, 240)),
    };
#undef VD_OFFER
    return all;
}

WidgetOffer::WidgetOffer(const OfferedWidget& widget)
    : m_widget(widget)
{
}

QString WidgetOffer::name() const
{
    return QLatin1String(m_widget.name);
}

QString WidgetOffer::group() const
{
    return QStringLiteral("Test charts");
}

QString WidgetOffer::toolTip() const
{
    return QLatin1String(m_widget.tip);
}

QString WidgetOffer::whatsThis() const
{
    return toolTip();
}

QString WidgetOffer::includeFile() const
{
    return QLatin1String(m_widget.header);
}

QIcon WidgetOffer::icon() const
{
    return QIcon(QStringLiteral(":/vardeno/designer/icon.png"));
}

bool WidgetOffer::isContainer() const
{
    return false;
}

QWidget* WidgetOffer::createWidget(QWidget* parent)
{
    return m_widget.create(parent);
}

QString WidgetOffer::domXml() const
{
    QString object = name().section(QStringLiteral("::"), -1);
    object[0] = object.at(0).toLower();
    return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">"
                          "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>%3</width>"
                          "<height>%4</height></rect></property></widget></ui>")
        .arg(name(), object)
        .arg(m_widget.size.width())
        .arg(m_widget.size.height());
}
