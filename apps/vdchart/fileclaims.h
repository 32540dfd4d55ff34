#pragma once

#include <testcharttoolsdata.h>

#include <QString>

#include <vector>

/// Where a file would be made under this name, behind links that lead nowhere yet.
QString placeOf(QString path);

/// What a command reads and writes, so that no output takes the place of an input or of another output. Files
/// are told apart by what they are, not by their names: a link, another path and a redirected stream are the
/// file that they lead to. Of "-" an input is the standard input, an output the standard output. Devices and
/// pipes keep nothing that could be lost, and may be both.
class FileClaims
{
public:
    /// `what` ends the message of a Failure: "the record that is drawn".
    void reads(const QString& path, const QString& what);
    void readsLogo(const vardeno::testcharttools::LogoChartData& logo);

    /// Throws a Failure of wrong usage, "a.png: is the record that is drawn", where the file is read or
    /// written. No path, no file.
    void protect(const QString& path) const;

    /// Protects what was claimed before, and `path` from what is written later.
    void writes(const QString& path);

private:
    /// A file that is there, or the place of one that is not.
    struct Identity
    {
        bool isFile = false;
        quint64 device = 0;
        quint64 number = 0;
        QString place;
        bool operator==(const Identity& other) const;
    };
    struct Claim
    {
        Identity identity;
        QString what;
    };
    static Identity identityOf(const QString& path, int stream);

    std::vector<Claim> m_claims;
};
