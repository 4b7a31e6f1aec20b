// The design tokens of the whole interface, in a dark and a light variant, and the colour helpers.
import QtQuick

QtObject {
    id: theme

    property bool dark: true
    property color accentOverride: "#3FB950"
    property bool useAccentOverride: false

    readonly property color bg0: dark ? "#080B12" : "#F4F6F9"
    readonly property color bg1: dark ? "#0D1117" : "#FFFFFF"
    readonly property color bg2: dark ? "#161B22" : "#F8FAFC"
    readonly property color surface: dark ? "#1C2128" : "#FFFFFF"
    readonly property color surface2: dark ? "#21262D" : "#F1F5F9"
    readonly property color surface3: dark ? "#2D333B" : "#E2E8F0"
    readonly property color surfaceHover: dark ? "#30363D" : "#E8ECF2"
    readonly property color stroke: dark ? "#30363D" : "#D1D9E0"
    readonly property color strokeLight: dark ? "#21262D" : "#E5E9EF"
    readonly property color strokeFocus: dark ? "#58A6FF" : "#2563EB"

    readonly property color text: dark ? "#F0F6FC" : "#1F2937"
    readonly property color textMuted: dark ? "#8B949E" : "#6B7280"
    readonly property color textFaint: dark ? "#6E7681" : "#9CA3AF"
    readonly property color textInverse: dark ? "#0D1117" : "#FFFFFF"

    readonly property color _defaultAccent: dark ? "#3FB950" : "#16A34A"
    readonly property color accent: useAccentOverride ? accentOverride : _defaultAccent
    readonly property color accentHover: lighten(accent, 0.12)
    readonly property color accentMuted: darken(accent, dark ? 0.6 : 0.35)

    readonly property color success: accent
    readonly property color danger: dark ? "#F85149" : "#DC2626"
    readonly property color warn: dark ? "#F0883E" : "#D97706"
    readonly property color info: dark ? "#58A6FF" : "#2563EB"
    readonly property color infoMuted: dark ? "#1F6FEB" : "#1D4ED8"
    readonly property color gold: dark ? "#F0B429" : "#D97706"
    readonly property color goldMuted: dark ? "#9E6A03" : "#92400E"

    readonly property color actionFold: dark ? "#E06C75" : "#B91C1C"
    readonly property color actionCheck: accent
    readonly property color actionCall: dark ? "#58A6FF" : "#2563EB"
    readonly property color actionBet: dark ? "#A371F7" : "#7C3AED"
    readonly property color actionRaise: dark ? "#F0883E" : "#EA580C"
    readonly property color actionAllIn: dark ? "#FF7B72" : "#EF4444"

    // The accents a user can choose instead of the default; the same in both modes.
    readonly property var accentSwatches: [
        {name: "Green", hex: "#3FB950"},
        {name: "Blue", hex: "#58A6FF"},
        {name: "Purple", hex: "#A371F7"},
        {name: "Gold", hex: "#F0B429"},
        {name: "Orange", hex: "#F0883E"},
        {name: "Red", hex: "#F85149"}
    ]

    // Sized bets and raises of one node, coloured by their rank within the node, smallest first.
    readonly property var betRankColors: dark ? ["#818CF8", "#A78BFA", "#C084FC", "#E879F9", "#F0ABFC"]
                                              : ["#4F46E5", "#7C3AED", "#9333EA", "#C026D3", "#BE185D"]
    readonly property var raiseRankColors: dark ? ["#FDBA74", "#FB923C", "#F97316", "#EA580C", "#C2410C"]
                                                : ["#F59E0B", "#F97316", "#EA580C", "#C2410C", "#9A3412"]

    // Card faces stay light in both modes, so spades keep one dark ink.
    readonly property color suitSpades: "#1F2937"
    readonly property color suitHearts: dark ? "#F85149" : "#DC2626"
    readonly property color suitDiamonds: dark ? "#58A6FF" : "#2563EB"
    readonly property color suitClubs: accent
    readonly property color cardFace: "#FFFEF5"
    readonly property color cardBack: dark ? "#1C4B82" : "#1E3A5F"
    readonly property color cardBorder: dark ? "#30363D" : "#D1D9E0"

    readonly property color heatCold: dark ? "#1F6FEB" : "#3B82F6"
    readonly property color heatWarm: dark ? "#F0883E" : "#F59E0B"
    readonly property color heatHot: dark ? "#F85149" : "#EF4444"

    readonly property int radiusXs: 4
    readonly property int radiusSm: 8
    readonly property int radiusMd: 12
    readonly property int radiusLg: 16
    readonly property int radiusXl: 20
    readonly property int radiusFull: 9999

    readonly property int spaceXs: 4
    readonly property int spaceSm: 8
    readonly property int spaceMd: 12
    readonly property int spaceLg: 16
    readonly property int spaceXl: 24
    readonly property int space2Xl: 32

    readonly property int durationFast: 100
    readonly property int durationNormal: 200
    readonly property int durationSlow: 300

    readonly property real shadowOpacity: dark ? 0.5 : 0.15
    readonly property string shadowSm: dark ? "0 1px 2px rgba(0,0,0,0.5)" : "0 1px 2px rgba(0,0,0,0.1)"
    readonly property string shadowMd: dark ? "0 4px 6px rgba(0,0,0,0.5)" : "0 4px 6px rgba(0,0,0,0.1)"
    readonly property string shadowLg: dark ? "0 10px 15px rgba(0,0,0,0.5)" : "0 10px 15px rgba(0,0,0,0.1)"

    readonly property string fontFamily: "Segoe UI, system-ui, -apple-system, sans-serif"
    readonly property string fontMono: "JetBrains Mono, Cascadia Code, Consolas, monospace"

    // A sized bet or raise, such as "Bet 50%" or "raise 200 %"; the size picks the shade.
    readonly property var _sizedActionPattern: /^(bet|raise)\s+(\d*\.?\d+)\s*%/
    readonly property real _fullShadeSizePct: 200

    function suitColor(suit) {
        switch (String(suit).toLowerCase()) {
        case "s":
        case "spades":
            return suitSpades
        case "h":
        case "hearts":
            return suitHearts
        case "d":
        case "diamonds":
            return suitDiamonds
        case "c":
        case "clubs":
            return suitClubs
        }
        return text
    }

    function actionColor(action) {
        if (action === undefined || action === null)
            return textMuted
        const key = String(action).toLowerCase()
        const sized = _sizedActionPattern.exec(key)
        if (sized)
            return _sizedActionColor(sized[1], Number(sized[2]))
        return _plainActionColor(key)
    }

    // Bets run from purple to pink and raises from orange to amber as the size grows.
    function _sizedActionColor(kind, sizePct) {
        const t = Math.max(0, Math.min(1, sizePct / _fullShadeSizePct))
        if (kind === "bet")
            return Qt.hsla(0.72 + 0.12 * t, 0.70, (dark ? 0.62 : 0.42) + 0.10 * t, 1)
        return Qt.hsla(0.07 + 0.04 * t, 0.78, (dark ? 0.60 : 0.44) + 0.12 * t, 1)
    }

    function _plainActionColor(key) {
        switch (key) {
        case "fold":
            return actionFold
        case "check":
            return actionCheck
        case "call":
            return actionCall
        case "bet":
            return actionBet
        case "raise":
            return actionRaise
        case "allin":
        case "all-in":
        case "all_in":
            return actionAllIn
        }
        return textMuted
    }

    function withOpacity(color, alpha) {
        const c = Qt.color(color)
        return Qt.rgba(c.r, c.g, c.b, alpha)
    }

    function lighten(color, amount) {
        return Qt.lighter(color, 1 + amount)
    }

    function darken(color, amount) {
        return Qt.darker(color, 1 + amount)
    }
}
