// SPDX-License-Identifier: MIT
/// Each message says what is wrong and how to write it right.
#include "qt/number_messages.h"

namespace mero::qt {
namespace {

using numbers::NotTaken;
using numbers::NumberField;

constexpr qsizetype kLongestQuotation = 40;

/// What is wrong with a pasted text; "%1" is the text in quotation marks.
QString fault(NotTaken reason, const NumberEntry& entry) {
    switch (reason) {
        case NotTaken::Empty:
            return QStringLiteral("text je prázdný");
        case NotTaken::NoNumber:
            return QStringLiteral("%1 není číslo");
        case NotTaken::SeveralNumbers:
            return QStringLiteral("%1 je víc čísel");
        case NotTaken::TwoSeparators:
            return QStringLiteral("%1 má víc desetinných oddělovačů, lze je číst různě");
        case NotTaken::PowerOfTen:
            return QStringLiteral("%1 lze číst různě, mocninu deseti zapište jako 2e-5");
        case NotTaken::OtherUnit:
            return entry.unit.isEmpty() ? QStringLiteral("%1 má jednotku, hodnota je bez jednotky")
                                        : QStringLiteral("%1 má jinou jednotku než ") + entry.unit;
        case NotTaken::TooLarge:
            return QStringLiteral("%1 je příliš velké číslo");
        case NotTaken::TooSmall:
            return QStringLiteral("%1 je příliš malé číslo");
        case NotTaken::Negative:
            return QStringLiteral("%1 je záporné číslo");
        case NotTaken::NotWhole:
            return QStringLiteral("%1 není celé číslo");
    }
    return {};
}

}  // namespace

QString quoted(const QString& text) {
    QString line = text.simplified();
    if (line.size() > kLongestQuotation) {
        line = line.left(kLongestQuotation) + QStringLiteral("…");
    }
    return QStringLiteral("„") + line + QStringLiteral("“");
}

QString typingMessage(NotTaken reason, const NumberEntry& entry) {
    switch (reason) {
        case NotTaken::TwoSeparators:
            return QStringLiteral("Číslo má jen jednu desetinnou tečku nebo čárku.");
        case NotTaken::Negative:
            return QStringLiteral("Záporné číslo sem nepatří.");
        case NotTaken::NotWhole:
            return QStringLiteral("Sem patří celé číslo.");
        case NotTaken::TooLarge:
            return QStringLiteral("Tak velké číslo sem nepatří.");
        case NotTaken::TooSmall:
            return QStringLiteral("Tak malé číslo sem nepatří.");
        default:
            break;
    }
    switch (entry.kind) {
        case NumberField::Whole:
            return QStringLiteral("Sem patří celé číslo.");
        case NumberField::WithExponent:
            return QStringLiteral("Sem patří číslo, například 0.0002 nebo 2e-4.");
        case NumberField::Plain:
            break;
    }
    return QStringLiteral("Sem patří číslo, například 12.5.");
}

QString pastingMessage(NotTaken reason, const QString& text, const NumberEntry& entry) {
    return QStringLiteral("Nevloženo: ") + cellMessage(reason, text, entry) + QLatin1Char('.');
}

QString cellMessage(NotTaken reason, const QString& text, const NumberEntry& entry) {
    return fault(reason, entry).replace(QLatin1String("%1"), quoted(text));
}

QString halfNumberMessage(const QString& half, const QString& kept) {
    const QString now =
        kept.isEmpty() ? QStringLiteral("pole zůstalo prázdné") : QStringLiteral("v poli zůstalo ") + kept;
    return quoted(half) + QStringLiteral(" není dopsané číslo, ") + now + QLatin1Char('.');
}

}  // namespace mero::qt
