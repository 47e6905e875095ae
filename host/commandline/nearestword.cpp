#include "host/commandline/nearestword.h"

#include "host/commandline/commandline.h"

#include <QVector>

#include <algorithm>
#include <numeric>

namespace {

/*! How many letters must be changed, added, left out or swapped with the next one. */
int editDistance(const QString &one, const QString &other)
{
    QVector<int> before(other.size() + 1);
    QVector<int> last(other.size() + 1);
    QVector<int> row(other.size() + 1);
    std::iota(last.begin(), last.end(), 0);
    for (int i = 1; i <= one.size(); ++i) {
        row[0] = i;
        for (int j = 1; j <= other.size(); ++j) {
            const bool isSame = one.at(i - 1) == other.at(j - 1);
            row[j] =
                std::min({last.at(j) + 1, row.at(j - 1) + 1, last.at(j - 1) + (isSame ? 0 : 1)});
            if (i > 1 && j > 1 && one.at(i - 1) == other.at(j - 2) &&
                one.at(i - 2) == other.at(j - 1)) {
                row[j] = std::min(row.at(j), before.at(j - 2) + 1);
            }
        }
        before.swap(last);
        last.swap(row);
    }
    return last.constLast();
}

} // namespace

QString nearestWord(const QString &typed, const QStringList &known)
{
    constexpr int longestName = 64; // nobody types such a name wrongly letter by letter
    QString nearest;
    int least = std::max(1, typed.size() / 3) + 1;
    for (const QString &word : known) {
        if (typed.size() > longestName || word.size() > longestName) {
            continue;
        }
        const int distance = editDistance(typed.toLower(), word.toLower());
        if (distance < least) {
            least = distance;
            nearest = word;
        }
    }
    return nearest;
}

QString didYouMean(const QString &typed, const QStringList &known)
{
    const QString nearest = nearestWord(typed, known);
    return nearest.isEmpty() ? QString() : CommandLine::tr("; did you mean \"%1\"?").arg(nearest);
}
