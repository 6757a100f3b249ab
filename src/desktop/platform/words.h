#pragma once

#include <QString>
#include <string_view>

#include "engine/common/phrase.h"
#include "engine/reports/row.h"

/// What the engine says, in the language and the digits of the user: every text of its own passes
/// here on its way into a window, and every number of a window that isn't shown by `QLocale`.
namespace varnello {

/// Loads the translations of the program and the toolkit for the first of the user's languages that
/// has any; English needs none. `varnello_LANGUAGE.qm` lies in the program, or in the user's or the
/// system's data folder in "varnello/translations". May be called before there is an application,
/// which takes them with `InstallTranslations`.
void LoadTranslations();
void InstallTranslations();
/// The language of the program's translation, as in "de"; empty without one.
QString Language();
/// A text of `context` for those who can't wait for an application.
QString Translated(const char* context, const char* english);

/// One of the engine's texts: a heading, a caption, a question.
QString Localized(std::string_view text);
QString Localized(const PhraseWord& word);
QString Localized(const Phrase& phrase);
QString Localized(const ReportCell& cell);

/// The digits of a text as the user's language writes them; all else stays.
QString InDigits(const QString& text);
/// The same for a number or a time of day with its sign, point and percent sign.
QString AsFigure(const QString& figure);
QString AsFigure(int number);

}  // namespace varnello
