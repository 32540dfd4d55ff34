#pragma once

#include "floatdockwidget.h"

class QColorDialog;

namespace vardeno::testcharttools {

/// The colour picker: the toolkit's colour dialog in a floating window, with its texts in the current
/// language. GUI thread only.
class VDPATTERNDESIGN_EXPORT CustomColorDialog : public FloatDockWidget
{
    Q_OBJECT

public:
    explicit CustomColorDialog(QWidget* parent = nullptr);
    ~CustomColorDialog() override;

    /// The colour to begin with. Setting it is not a choice: no signal is sent.
    void setCurrentColor(const QColor& color);
    QColor currentColor() const;

    /// Shows the texts in the current language. A change of the toolkit's language, which gives the toolkit's
    /// dialog its own texts back, does so by itself.
    void retranslate();

    void setVisible(bool visible) override;

Q_SIGNALS:
    void sigColorSelected(QColor color);
    /// While the user moves in the dialog, before any choice.
    void sigColorExternallyChanged(QColor color);
    void sigColorDialogRejected();
    void sigColorAccept(QColor color);

public Q_SLOTS:
    void slotColorSelected(QColor color);
    void slotColorExternallyChanged(QColor color);
    void slotColorDialogRejected();
    void slotDialogAccepted();

protected:
    bool event(QEvent* event) override;

private:
    void endChoice();
    void tagChildren();

    QColorDialog* m_dialog;
};

} // namespace vardeno::testcharttools
