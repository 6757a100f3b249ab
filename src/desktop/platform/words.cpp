#include "desktop/platform/words.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>
#include <algorithm>

#include "desktop/platform/text.h"

namespace varnello {
namespace {

constexpr const char* kContext = "Engine";

struct Translations {
    QTranslator program;
    QTranslator toolkit;
};

/// They live until the last window is gone.
Translations& Loaded() {
    static Translations loaded;
    return loaded;
}

QString Translate(std::string_view text, int count = -1) {
    return QCoreApplication::translate(kContext, std::string(text).c_str(), nullptr, count);
}

/// The sentence for the count; of English there are no translations that know the one for one.
QString Sentence(const Phrase& phrase) {
    const auto& [many, one] = phrase.Text;
    if (many.find("%n") == std::string_view::npos && many == one) return Translate(many);
    const QString sentence = Translate(many, phrase.Count);
    const QString english = ToQt(many).replace(QStringLiteral("%n"), QString::number(phrase.Count));
    return phrase.Count == 1 && sentence == english ? ToQt(one) : sentence;
}

struct ToLocalized {
    QString operator()(int number) const { return AsFigure(number); }
    QString operator()(double number) const { return AsFigure(ToQt(English(number))); }
    QString operator()(Duration time) const { return AsFigure(ToQt(English(time))); }
    QString operator()(Grouped number) const {
        QLocale locale;
        locale.setNumberOptions(locale.numberOptions() & ~QLocale::OmitGroupSeparator);
        return number.Value == 0 ? QString() : locale.toString(number.Value, 'f', 0);
    }
    QString operator()(std::string_view text) const { return Translate(text); }
    QString operator()(const std::string& own) const { return ToQt(own); }
};

}  // namespace

void LoadTranslations() {
    // A translator's own file, still to be tried, comes before the one that is built in.
    const QStringList folders = QStandardPaths::locateAll(QStandardPaths::GenericDataLocation,
                                                          QStringLiteral("varnello/translations"),
                                                          QStandardPaths::LocateDirectory)
                                << QStringLiteral(":/translations");
    for (QString language : QLocale().uiLanguages()) {
        language.replace('-', '_');
        const QLocale locale(language);
        if (locale.language() == QLocale::English || locale.language() == QLocale::C) return;
        auto& [program, toolkit] = Loaded();
        const bool found =
            std::any_of(folders.begin(), folders.end(), [&, &own = program](const QString& folder) {
                return own.load(QStringLiteral("varnello_") + language, folder);
            });
        if (!found) continue;
        (void)toolkit.load(QStringLiteral("qtbase_") + language,
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        return;
    }
}

void InstallTranslations() {
    for (QTranslator* translator : {&Loaded().toolkit, &Loaded().program}) {
        if (!translator->isEmpty()) QCoreApplication::installTranslator(translator);
    }
}

QString Language() { return Loaded().program.language().section(QLatin1Char('_'), 0, 0); }

QString Translated(const char* context, const char* english) {
    const QString found = Loaded().program.translate(context, english);
    return found.isEmpty() ? QString::fromUtf8(english) : found;
}

QString Localized(std::string_view text) { return Translate(text); }

QString Localized(const PhraseWord& word) { return std::visit(ToLocalized{}, word); }

QString Localized(const Phrase& phrase) {
    QString shown;
    const auto add = [&](std::string_view piece) { shown += InDigits(ToQt(piece)); };
    const auto place = [&](int number) {
        shown += number == 0 ? AsFigure(phrase.Count)
                             : Localized(phrase.Words.at(static_cast<std::size_t>(number - 1)));
    };
    Compose(Sentence(phrase).toStdString(), add, place);
    return shown;
}

QString Localized(const ReportCell& cell) {
    switch (cell.Form) {
        case CellForm::Word: return Translate(cell.Text);
        case CellForm::Figure: return AsFigure(ToQt(cell.Text));
        case CellForm::Own: break;
    }
    return ToQt(cell.Text);
}

QString InDigits(const QString& text) {
    const QLocale locale;
    if (locale.zeroDigit() == QLatin1String("0")) return text;
    QString shown;
    for (const QChar letter : text) {
        const bool digit = letter >= '0' && letter <= '9';
        shown += digit ? locale.toString(letter.digitValue()) : QString(letter);
    }
    return shown;
}

QString AsFigure(const QString& figure) {
    const QLocale locale;
    QString shown;
    for (const QChar letter : figure) {
        switch (letter.unicode()) {
            case '-': shown += locale.negativeSign(); break;
            case '.': shown += locale.decimalPoint(); break;
            case '%': shown += locale.percent(); break;
            default: shown += letter;
        }
    }
    return InDigits(shown);
}

QString AsFigure(int number) { return AsFigure(QString::number(number)); }

}  // namespace varnello
