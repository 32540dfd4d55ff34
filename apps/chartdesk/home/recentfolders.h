#pragma once

#include <QMenu>

/// The folders that were opened last, as a menu.
class RecentFolders : public QMenu
{
    Q_OBJECT

public:
    explicit RecentFolders(QWidget* parent = nullptr);

    /// `folder` is the latest now.
    void add(const QString& folder);
    static QStringList folders();

Q_SIGNALS:
    void chosen(const QString& folder);

private:
    void fill();
};
