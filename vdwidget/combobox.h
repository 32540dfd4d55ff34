#pragma once

#include "vdwidget_export.h"

#include <QComboBox>

namespace vardeno::testcharttools {

/// A combo box for a settings panel: as wide as the panel makes it, whatever the length of its items. The
/// list that pops up is wide enough to show every item whole, and the current item's full text is the box's
/// tool tip while the box is too narrow for it. Items are added with `addItem(text, data)`. GUI thread only.
class VDWIDGET_EXPORT ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget* parent = nullptr);

    void showPopup() override;

protected:
    bool event(QEvent* event) override;

private:
    int widestItem() const;
};

} // namespace vardeno::testcharttools
