#ifndef APP_LANGUAGES_H
#define APP_LANGUAGES_H

#include <QString>
#include <QStringList>

/*! The languages that the window speaks. */
namespace Languages {

/*! Their codes: "en", "zh", ... */
[[nodiscard]] QStringList all();
/*! The one that suits \a locale, such as "de_AT"; empty for a language that isn't spoken. */
[[nodiscard]] QString suiting(const QString &locale);
/*! Makes the application speak the one of these codes, for the rest of its run. */
void install(const QString &code);
/*! Lets characters that languages share be drawn as the one of these codes draws them. Call it
 *  before there is an application. */
void chooseGlyphs(const QString &code);
/*! The first of the system's languages that is spoken, else English. */
[[nodiscard]] QString ofSystem();

} // namespace Languages

#endif
