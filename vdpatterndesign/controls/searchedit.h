#pragma once

#include "vdpatterndesign_export.h"

#include <QPushButton>

#include <memory>

class QLineEdit;

namespace vardeno::testcharttools {

/// A one-line text box with a clear button, 20 pixels high, in a frame that is a button to a style sheet. The
/// clear button appears when the text box has the focus for the first time, and stays.
///
/// For style sheets: the frame has the property "style" = "editButton", the text box "style" = "transparent",
/// and the clear button "imageBtn" = "close". The clear button shows the style's own picture; a sheet
/// replaces it with `icon`.
///
/// GUI thread only.
class VDPATTERNDESIGN_EXPORT SearchEdit : public QPushButton
{
    Q_OBJECT

public:
    explicit SearchEdit(QWidget* parent = nullptr);
    ~SearchEdit() override;

    /// The text box, for its text, placeholder and validator.
    QLineEdit* lineEdit() const;
    /// Places `widget` left of the text box and owns it from then on; the one that was there is deleted.
    /// Null takes it away. Initially there is none.
    void setLeadingWidget(QWidget* widget);
    QWidget* leadingWidget() const;

    QSize sizeHint() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void editingFinished();
    /// The text has changed, by whatever means.
    void textChanged(QString text);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
