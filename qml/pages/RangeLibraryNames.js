// What the library shows for a stored name. Stored names stay English, since paths and overrides are keyed by
// them; only the shown text is translated, in the Setup page's catalogue context. Custom names show as typed.
.pragma library

const CONTEXT = "ProjectPage"
const STANDARD = 0
const POPULATION = 1

const CATEGORY_LABELS = [
    QT_TRANSLATE_NOOP("ProjectPage", "Standard Ranges"),
    QT_TRANSLATE_NOOP("ProjectPage", "Population Ranges"),
    QT_TRANSLATE_NOOP("ProjectPage", "Custom Ranges")
]
const STANDARD_WORDS = [
    QT_TRANSLATE_NOOP("ProjectPage", "6-max"),
    QT_TRANSLATE_NOOP("ProjectPage", "Heads up"),
    QT_TRANSLATE_NOOP("ProjectPage", "RFI"),
    QT_TRANSLATE_NOOP("ProjectPage", "vs RFI"),
    QT_TRANSLATE_NOOP("ProjectPage", "vs 3bet"),
    QT_TRANSLATE_NOOP("ProjectPage", "vs 4bet"),
    QT_TRANSLATE_NOOP("ProjectPage", "No rake"),
    QT_TRANSLATE_NOOP("ProjectPage", "50nl rake"),
    QT_TRANSLATE_NOOP("ProjectPage", "100nl rake"),
    QT_TRANSLATE_NOOP("ProjectPage", "200nl rake"),
    QT_TRANSLATE_NOOP("ProjectPage", "500nl rake")
]
// The second word of a two-word leaf that is translated ("UTG Call", "SB 3bet").
const ACTION_WORDS = ["Call", "Fold", "RFI", "3bet", "4bet"]
const POSITION_WORDS = ["UTG/HJ/CO", "UTG", "HJ", "CO", "BTN", "BU", "SB", "BB"]
const POPULATION_WORDS = [
    QT_TRANSLATE_NOOP("ProjectPage", "Limp"),
    QT_TRANSLATE_NOOP("ProjectPage", "Limp-call"),
    QT_TRANSLATE_NOOP("ProjectPage", "Limp-3b"),
    QT_TRANSLATE_NOOP("ProjectPage", "RFI"),
    "Call",
    QT_TRANSLATE_NOOP("ProjectPage", "Call raise"),
    QT_TRANSLATE_NOOP("ProjectPage", "Check back"),
    QT_TRANSLATE_NOOP("ProjectPage", "3b"),
    QT_TRANSLATE_NOOP("ProjectPage", "4b"),
    QT_TRANSLATE_NOOP("ProjectPage", "Call 3b"),
    QT_TRANSLATE_NOOP("ProjectPage", "Call 4b"),
    QT_TRANSLATE_NOOP("ProjectPage", "3b cold call"),
    QT_TRANSLATE_NOOP("ProjectPage", "Bomb pot"),
    QT_TRANSLATE_NOOP("ProjectPage", "Weaker regs"),
    QT_TRANSLATE_NOOP("ProjectPage", "Tighter reg"),
    QT_TRANSLATE_NOOP("ProjectPage", "Looser reg"),
    QT_TRANSLATE_NOOP("ProjectPage", "Other"),
    QT_TRANSLATE_NOOP("ProjectPage", "Nit"),
    QT_TRANSLATE_NOOP("ProjectPage", "Overfolder")
]
const PLAYER_TYPE_LABELS = [
    QT_TRANSLATE_NOOP("ProjectPage", "Passive"),
    QT_TRANSLATE_NOOP("ProjectPage", "Passive tight"),
    QT_TRANSLATE_NOOP("ProjectPage", "Passive neutral"),
    QT_TRANSLATE_NOOP("ProjectPage", "Passive loose"),
    QT_TRANSLATE_NOOP("ProjectPage", "Extreme loose"),
    QT_TRANSLATE_NOOP("ProjectPage", "Loose aggressive"),
    QT_TRANSLATE_NOOP("ProjectPage", "Standard LAG"),
    QT_TRANSLATE_NOOP("ProjectPage", "Maniac"),
    QT_TRANSLATE_NOOP("ProjectPage", "Overfolder")
]
const OPENER_FOLDER = /^vs (\S+) RFI$/
const THREE_BET_SPOT = /^(\S+) vs (\S+) 3bet$/
const FOUR_BET_SPOT = /^(\S+) 3bet vs (\S+) 4bet$/
const TWO_WORDS = /^(\S+) (\S+)$/
// A label, then parentheses with "VPIP" before or after the numbers: "Passive (VPIP 18–65)", "Nit (10-22 VPIP)".
const VPIP_NAME = /^(.*?)\s*\(\s*(?:VPIP\s+([^()]*?)|([^()]*?)\s+VPIP)\s*\)$/

function _tr(text) {
    return qsTranslate(CONTEXT, text)
}

function categoryLabel(category) {
    const label = CATEGORY_LABELS[category]
    return label === undefined ? "" : _tr(label)
}

function _standardName(name) {
    if (STANDARD_WORDS.indexOf(name) >= 0)
        return _tr(name)
    let match = OPENER_FOLDER.exec(name)
    if (match)
        return qsTranslate("ProjectPage", "vs %1 RFI").arg(match[1])
    match = THREE_BET_SPOT.exec(name)
    if (match)
        return qsTranslate("ProjectPage", "%1 vs %2 3bet").arg(match[1]).arg(match[2])
    match = FOUR_BET_SPOT.exec(name)
    if (match)
        return qsTranslate("ProjectPage", "%1 3bet vs %2 4bet").arg(match[1]).arg(match[2])
    match = TWO_WORDS.exec(name)
    if (match) {
        const second = ACTION_WORDS.indexOf(match[2]) >= 0 ? _tr(match[2]) : match[2]
        return qsTranslate("ProjectPage", "%1 %2").arg(match[1]).arg(second)
    }
    return name
}

function _populationName(name) {
    if (POSITION_WORDS.indexOf(name) >= 0)
        return name
    if (POPULATION_WORDS.indexOf(name) >= 0)
        return _tr(name)
    const match = VPIP_NAME.exec(name)
    if (match) {
        const label = match[1].trim()
        const shownLabel = PLAYER_TYPE_LABELS.indexOf(label) >= 0 ? _tr(label) : label
        const numbers = match[2] !== undefined ? match[2] : match[3]
        return qsTranslate("ProjectPage", "%1 (VPIP %2)").arg(shownLabel).arg(numbers.trim())
    }
    return _standardName(name)
}

function displayName(category, rawName) {
    const name = rawName === undefined || rawName === null ? "" : String(rawName)
    const kind = Number(category)
    if (kind === STANDARD)
        return _standardName(name)
    if (kind === POPULATION)
        return _populationName(name)
    return name
}
