#include "helpmenu.h"

#include "diagnostics.h"
#include "hosttext.h"
#include "manualwindow.h"
#include "messagebox.h"
#include "shortcutsheet.h"

#include <vdpatterndesign_version.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMenuBar>
#include <QPushButton>

namespace {

QString native(const QKeySequence& key)
{
    return key.toString(QKeySequence::NativeText);
}

ShortcutSheet::Keys keysOfTheOutput()
{
    return {{hostText(QStringLiteral("Jump to a chart on the output")), QStringLiteral("1 … 9, 0")},
            {hostText(QStringLiteral("Leave the output")), native(Qt::Key_Escape)}};
}

ShortcutSheet::Keys keysOfTheEditor()
{
    return {{hostText(QStringLiteral("Undo")), native(QStringLiteral("Ctrl+Z"))},
            {hostText(QStringLiteral("Redo")), native(QStringLiteral("Ctrl+Shift+Z"))},
            {hostText(QStringLiteral("Zoom in")), QStringLiteral("+")},
            {hostText(QStringLiteral("Zoom out")), QStringLiteral("−")},
            {hostText(QStringLiteral("Whole chart")), QStringLiteral("0")},
            {hostText(QStringLiteral("Pixel for pixel")), QStringLiteral("1")}};
}

/// Those that are no actions.
ShortcutSheet::Groups otherKeys()
{
    return {{hostText(QStringLiteral("Output")), keysOfTheOutput()},
            {hostText(QStringLiteral("Editor")), keysOfTheEditor()}};
}

} // namespace

HelpMenu::HelpMenu(const QMenuBar* menus, QWidget* window)
    : QMenu(window)
    , m_menus(menus)
    , m_window(window)
    , m_shortcuts(addAction(QString()))
    , m_manual(addAction(QString()))
    , m_about(addAction(QString()))
{
    m_shortcuts->setShortcut(Qt::Key_F1);
    m_manual->setShortcut(Qt::SHIFT | Qt::Key_F1);
    connect(m_shortcuts, &QAction::triggered, this,
            [this] { (new ShortcutSheet(m_menus, otherKeys(), m_window))->open(); });
    connect(m_manual, &QAction::triggered, this, [this] { (new ManualWindow(m_window))->show(); });
    connect(m_about, &QAction::triggered, this, &HelpMenu::showAbout);
}

void HelpMenu::retranslate()
{
    setTitle(hostText(QStringLiteral("Help")));
    m_shortcuts->setText(hostText(QStringLiteral("Keyboard shortcuts")));
    m_manual->setText(hostText(QStringLiteral("Manual")));
    m_about->setText(hostText(QStringLiteral("About")));
}

void HelpMenu::showAbout()
{
    QMessageBox* box = messageBox(
        m_window, MessageKind::Note,
        hostText(QStringLiteral("Test charts")) + QStringLiteral(" " VDPATTERNDESIGN_VERSION), diagnostics());
    box->setWindowTitle(hostText(QStringLiteral("About")));
    QPushButton* copy = box->addButton(hostText(QStringLiteral("Copy diagnostics")), QMessageBox::ActionRole);
    box->setEscapeButton(box->addButton(QMessageBox::Close));
    connect(copy, &QPushButton::clicked, this, [] { QGuiApplication::clipboard()->setText(diagnostics()); });
    box->open();
}
