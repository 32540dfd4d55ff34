#pragma once

#include <QColor>
#include <QObject>
#include <QPoint>

#include <vector>

class QPushButton;
class QRect;
class QWidget;

namespace vardeno::testcharttools {

class CustomColorDialog;
class SettingPanel;

/// The one colour picker of the tool and what it is open for: it serves one role at a time, which names the
/// colour of a panel. A tool without a grandparent has none, and then nothing here does anything.
class ColorPicking : public QObject
{
public:
    ColorPicking(QWidget* tool, const std::vector<SettingPanel*>& panels);

    void createDialog();
    /// Null without a grandparent.
    CustomColorDialog* dialog() const { return m_dialog; }
    QString servedRole() const;

    /// Opens the picker for the colour of `button`.
    void open(QPushButton* button);
    void hide();
    /// Gives the colour that is being picked another value.
    void select(const QColor& color);
    /// Gives it the value back that it had before.
    void reject();
    /// A colour has been chosen: the next choice goes back to it.
    void accept(const QColor& color);

    /// The picker stays in the host's window, and opens in its middle.
    void setMoveRange(const QRect& range);
    void moveWithHost(const QRect& globalRect, const QPoint& movePos);
    void setStyleSheet(const QString& sheet);
    void retranslate();

private:
    void centre();

    QWidget* m_tool;
    const std::vector<SettingPanel*>& m_panels;
    CustomColorDialog* m_dialog = nullptr;
    QPoint m_anchor;
    QColor m_before; ///< invalid while there is none to go back to
};

} // namespace vardeno::testcharttools
