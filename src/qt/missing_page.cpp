// SPDX-License-Identifier: MIT
/// Finds out what of a path is the name: everything below the program's folder or, where that is not found,
/// below the last folder that exists.
#include "qt/missing_page.h"

#include <QFileInfo>
#include <algorithm>
#include <optional>

namespace mero::qt {
namespace {

/// How the names of report files begin; a project's name follows.
constexpr QLatin1String kReport("Mero_");
/// The longest name of a file on usual file systems, in bytes.
constexpr qsizetype kLongestName = 255;
constexpr QLatin1String kSuffix(".html");
/// Leaves room for the suffix, and for what another folder of the user may add.
constexpr qsizetype kLongestProposal = 200;
/// Other systems refuse more than this one does, and files are handed on.
constexpr QLatin1String kRefusedSomewhere("/\\:*?\"<>|");

/// The part of the path below the last folder that satisfies the condition; nothing without one.
template <typename Condition>
std::optional<QString> below(const QString& path, Condition condition) {
    for (qsizetype slash = path.lastIndexOf(QLatin1Char('/')); slash >= 0;
         slash = slash > 0 ? path.lastIndexOf(QLatin1Char('/'), slash - 1) : -1) {
        if (condition(path.left(slash + 1))) {
            return path.mid(slash + 1);
        }
    }
    return std::nullopt;
}

/// The file's name; it contains slashes where they are part of a project's name, also where folders of these
/// names exist. The program's folder is the one with the pages in it.
QString nameOf(const QString& path) {
    const auto holds_report = [&path](const QString& folder) {
        return path.startsWith(folder + kReport) && QFileInfo(folder + QLatin1String("Webs")).isDir();
    };
    const auto exists = [](const QString& folder) { return QFileInfo(folder).isDir(); };
    return below(path, holds_report).value_or(below(path, exists).value_or(path));
}

QString cause(const QString& path) {
    const QString name = nameOf(path);
    if (!name.startsWith(kReport)) {
        return {};
    }
    QString fault;
    if (name.contains(QLatin1Char('/'))) {
        fault = QStringLiteral("je v něm lomítko");
    } else if (name.contains(QChar::Null)) {
        fault = QStringLiteral("je v něm nulový znak");
    } else if (name.toUtf8().size() > kLongestName) {
        fault = QStringLiteral("je příliš dlouhý");
    } else {
        return {};
    }
    return QStringLiteral(
               "<p>Příčinou je název projektu <b>%1</b>: %2, a tak podle něj nelze pojmenovat soubor se "
               "zprávou. Zprávu proto nelze ani uložit a vytisknout. Změňte název na první záložce a vraťte "
               "se "
               "sem.</p>")
        .arg(name.mid(kReport.size()).toHtmlEscaped(), fault);
}

}  // namespace

QString missingPage(const QString& path) {
    return QStringLiteral(
               "<html><body><h3>Stránku nelze zobrazit</h3>"
               "<p>Soubor <b>%1</b> neexistuje nebo jej nelze přečíst.</p>%2</body></html>")
        .arg(path.toHtmlEscaped(), cause(path));
}

QString savableName(const QString& path) {
    QString name = nameOf(path);
    std::replace_if(
        name.begin(), name.end(),
        [](QChar each) {
            return each.category() == QChar::Other_Control || kRefusedSomewhere.contains(each);
        },
        QLatin1Char('-'));
    const QString suffix = name.endsWith(kSuffix) ? QString(kSuffix) : QString();
    name.chop(suffix.size());
    while (name.toUtf8().size() > kLongestProposal) {
        name.chop(name.back().isLowSurrogate() ? 2 : 1);
    }
    return name + suffix;
}

}  // namespace mero::qt
