#include "deskmemory.h"

#include "desksettings.h"
#include "languages.h"
#include "mainwindow.h"

#include <QEvent>

namespace {

const QString placeKey = QStringLiteral("window/place");
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
    deskSettings().setValue(placeKey, m_window->saveGeometry());
}
