#pragma once

#include "vdpatterndesign_export.h"

#include <QDialog>

#include <memory>

namespace vardeno::testcharttools {

/// A small pop-up that asks whether a colour is to be deleted. It is shown without waiting for the answer,
/// closes on either button, on Escape and on a click elsewhere, and deletes itself when it is closed. GUI
/// thread only.
class VDPATTERNDESIGN_EXPORT CustomDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CustomDialog(QWidget* parent = nullptr);
    ~CustomDialog() override;

    /// Shows the texts in the current language.
    void retranslate();

    void setDialogStyleSheet(const QString& styleSheet);

Q_SIGNALS:
    /// The user has confirmed.
    void configDelete();
    void onConfirm();

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
