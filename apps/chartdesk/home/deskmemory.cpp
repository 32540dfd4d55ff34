#include "deskmemory.h"

#include "desksettings.h"
#include "languages.h"
#include "mainwindow.h"

#include <QEvent>
#include <QFileInfo>

namespace {

const QString placeKey = QStringLiteral("window/place");
const QString folderKey = QStringLiteral("folder");
const QString languageKey = QStringLiteral("language");

} // namespace

DeskMemory::DeskMemory(MainWindow* window)
    : QObject(window)
    , m_window(window)
{
    restorePlace();
    window->installEventFilter(this);
    connect(window, &MainWindow::languageSwitched, this,
            [](const QString& code) { deskSettings().setValue(languageKey, code); });
}

QString DeskMemory::language(const QString& otherwise)
{
    const QString chosen = deskSettings().value(languageKey).toString();
    return languageCodes().contains(chosen) ? chosen : otherwise;
}

QString DeskMemory::folder(const QString& otherwise)
{
    const QString last = deskSettings().value(folderKey).toString();
    return QFileInfo(last).isDir() ? last : otherwise;
}

/// The toolkit keeps it on a display that is there.
void DeskMemory::restorePlace()
{
    const QByteArray place = deskSettings().value(placeKey).toByteArray();
    if (!place.isEmpty())
        m_window->restoreGeometry(place);
}

bool DeskMemory::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide)
        store();
    return QObject::eventFilter(watched, event);
}

void DeskMemory::store() const
{
    QSettings settings = deskSettings();
    settings.setValue(placeKey, m_window->saveGeometry());
    settings.setValue(folderKey, QFileInfo(m_window->folder()).absoluteFilePath());
}
