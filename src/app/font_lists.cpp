#include "app/font_lists.h"

#include <QFont>

namespace kelvane_app {
namespace {

// Families that Linux desktops ship when none of the list's own is present.
const QStringList kSansFallbacks{QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans"),
                                 QStringLiteral("Liberation Sans")};
const QStringList kMonoFallbacks{QStringLiteral("Noto Sans Mono"), QStringLiteral("DejaVu Sans Mono"),
                                 QStringLiteral("Liberation Mono")};

}  // namespace

QStringList font_substitutes(const QString& list, const QStringList& fallbacks) {
    QStringList families;
    for (const QString& member : list.split(QLatin1Char(','))) {
        const QString family = member.trimmed();
        if (!family.isEmpty()) families.append(family);
    }
    return families + fallbacks;
}

void install_theme_font_lists() {
    QFont::insertSubstitutions(kSansFontList, font_substitutes(kSansFontList, kSansFallbacks));
    QFont::insertSubstitutions(kMonoFontList, font_substitutes(kMonoFontList, kMonoFallbacks));
}

}  // namespace kelvane_app
