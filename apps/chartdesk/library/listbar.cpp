#include "listbar.h"

#include "hosttext.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>

ListBar::ListBar(ChartList* list, QWidget* parent)
    : QWidget(parent)
    , m_search(new QLineEdit)
    , m_order(new QComboBox)
{
    m_search->setObjectName(QStringLiteral("chartSearch"));
    m_search->setClearButtonEnabled(true);
    m_search->setMaximumWidth(420);
    m_order->setObjectName(QStringLiteral("chartOrder"));
    m_order->addItems({QString(), QString(), QString()}); // in the order of ChartList::Order
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_search, 1);
    layout->addWidget(m_order);
    layout->addStretch();
    connect(m_search, &QLineEdit::textChanged, list, &ChartList::setSearch);
    connect(m_order, qOverload<int>(&QComboBox::currentIndexChanged), list,
            [list](int order) { list->setOrder(ChartList::Order(order)); });
}

void ListBar::retranslate()
{
    const QString search = hostText(QStringLiteral("Search name, date, size or tag"));
    m_search->setPlaceholderText(search);
    m_search->setAccessibleName(search);
    m_search->setToolTip(search);
    const QStringList orders = {hostText(QStringLiteral("Newest first")),
                                hostText(QStringLiteral("Oldest first")),
                                hostText(QStringLiteral("By name"))};
    for (int order = 0; order < orders.size(); ++order)
        m_order->setItemText(order, orders.at(order));
    m_order->setAccessibleName(hostText(QStringLiteral("Order of the charts")));
    m_order->setToolTip(m_order->accessibleName());
}

void ListBar::startSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}
