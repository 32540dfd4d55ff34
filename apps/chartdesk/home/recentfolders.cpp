#include "recentfolders.h"

#include "desksettings.h"

#include <QDir>

namespace {

constexpr int mostFolders = 8;
const QString recentKey = QStringLiteral("recentFolders");

} // namespace

RecentFolders::RecentFolders(QWidget* parent)
    : QMenu(parent)
{
    connect(this, &QMenu::aboutToShow, this, &RecentFolders::fill);
}

QStringList RecentFolders::folders()
{
    return deskSettings().value(recentKey).toStringList();
}

void RecentFolders::add(const QString& folder)
{
    QStringList all = folders();
    const QString path = QDir(folder).absolutePath();
    all.removeAll(path);
    all.prepend(path);
    deskSettings().setValue(recentKey, QStringList(all.mid(0, mostFolders)));
}

/// Those that are there: a disk may be away.
void RecentFolders::fill()
{
    clear();
    const QStringList all = folders();
    for (const QString& folder : all) {
        if (!QDir(folder).exists())
            continue;
        QAction* action = addAction(QString(folder).replace(QLatin1Char('&'), QLatin1String("&&")));
        connect(action, &QAction::triggered, this, [this, folder] { Q_EMIT chosen(folder); });
    }
}
