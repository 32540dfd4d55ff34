#include "widgets.h"

#include <memory>

/// What Qt Designer loads.
class TestChartWidgets : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")

public:
    TestChartWidgets()
    {
        for (const OfferedWidget& widget : offeredWidgets())
            m_offers.push_back(std::make_unique<WidgetOffer>(widget));
    }

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override
    {
        QList<QDesignerCustomWidgetInterface*> all;
        for (const auto& offer : m_offers)
            all.append(offer.get());
        return all;
    }

private:
    std::vector<std::unique_ptr<WidgetOffer>> m_offers;
};

#include "plugin.moc"
