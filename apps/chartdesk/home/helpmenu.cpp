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

ShortcutSheet::Keys keysOfTheOutput()
{
    return {{hostText(QStringLiteral("Jump to a chart on the output")), QStringLiteral("1 … 9, 0")},
            {hostText(QStringLiteral("Leave the output")),
             QKeySequence(Qt::Key_Escape).toString(QKeySequence::NativeText)}};
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
            [this] { (new ShortcutSheet(m_menus, keysOfTheOutput(), m_window))->open(); });
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
