#pragma once
// The interface names its fonts as lists, first choice first ("JetBrains Mono, Consolas, monospace"),
// but a QFont family is one name. Each list is installed as a name of its own whose substitutes are its
// members followed by common installed fall-backs, so text is drawn in the first family present.

#include <QString>
#include <QStringList>

namespace kelvane_app {

// The two lists of the theme, to the letter.
inline const QString kSansFontList = QStringLiteral("Segoe UI, system-ui, -apple-system, sans-serif");
inline const QString kMonoFontList = QStringLiteral("JetBrains Mono, Cascadia Code, Consolas, monospace");

// The members of a list, trimmed, in order, then the fall-backs.
QStringList font_substitutes(const QString& list, const QStringList& fallbacks);

// Installs both lists; call once after the application object exists.
void install_theme_font_lists();

}  // namespace kelvane_app
