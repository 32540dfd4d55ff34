#include "common/nearestname.h"

#include <QVector>

#include <algorithm>
#include <numeric>

namespace vardeno::testcharttools {

namespace {

constexpr int longestName = 100;

/// The number of letters to be put in, taken out or replaced.
int distance(const QString& a, const QString& b)
{
    QVector<int> row(b.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < a.size(); ++i) {
        int diagonal = row[0]++;
        for (int j = 0; j < b.size(); ++j) {
            const int replaced = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.last();
}

} // namespace

QString nearestName(const QString& name, const QStringList& names)
{
    if (name.size() > longestName)
        return {};
    const bool isWhole = name.contains(QLatin1Char('.'));
    QString nearest;
    int least = 2 + std::min(3, name.size() / 3);
    for (const QString& candidate : names) {
        const QString compared = isWhole ? candidate : candidate.section(QLatin1Char('.'), -1);
        const int letters = distance(name.toLower(), compared.toLower());
        if (letters < least) {
            least = letters;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace vardeno::testcharttools
