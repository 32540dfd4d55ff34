#pragma once

#include "chartlist.h"

#include <QWidget>

class QComboBox;
class QLineEdit;

/// Searches and sorts a list of charts.
class ListBar : public QWidget
{
    Q_OBJECT

public:
    explicit ListBar(ChartList* list, QWidget* parent = nullptr);

    void retranslate();
    /// To type into.
    void startSearch();

private:
    QLineEdit* m_search;
    QComboBox* m_order;
};
