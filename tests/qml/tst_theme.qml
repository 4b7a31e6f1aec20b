import QtQuick
import QtTest
import Kelvane

TestCase {
    id: testCase

    name: "Theme"

    // Token, dark value, light value.
    readonly property var modeTokens: [
        ["bg0", "#080B12", "#F4F6F9"],
        ["bg1", "#0D1117", "#FFFFFF"],
        ["bg2", "#161B22", "#F8FAFC"],
        ["surface", "#1C2128", "#FFFFFF"],
        ["surface2", "#21262D", "#F1F5F9"],
        ["surface3", "#2D333B", "#E2E8F0"],
        ["surfaceHover", "#30363D", "#E8ECF2"],
        ["stroke", "#30363D", "#D1D9E0"],
        ["strokeLight", "#21262D", "#E5E9EF"],
        ["strokeFocus", "#58A6FF", "#2563EB"],
        ["text", "#F0F6FC", "#1F2937"],
        ["textMuted", "#8B949E", "#6B7280"],
        ["textFaint", "#6E7681", "#9CA3AF"],
        ["textInverse", "#0D1117", "#FFFFFF"],
        ["danger", "#F85149", "#DC2626"],
        ["suitHearts", "#F85149", "#DC2626"],
        ["suitDiamonds", "#58A6FF", "#2563EB"],
        ["suitSpades", "#1F2937", "#1F2937"],
        ["cardFace", "#FFFEF5", "#FFFEF5"],
        ["cardBack", "#1C4B82", "#1E3A5F"],
        ["cardBorder", "#30363D", "#D1D9E0"],
        ["heatCold", "#1F6FEB", "#3B82F6"],
        ["heatWarm", "#F0883E", "#F59E0B"],
        ["heatHot", "#F85149", "#EF4444"],
        ["actionFold", "#E06C75", "#B91C1C"],
        ["actionCall", "#58A6FF", "#2563EB"],
        ["actionBet", "#A371F7", "#7C3AED"],
        ["actionRaise", "#F0883E", "#EA580C"],
        ["actionAllIn", "#FF7B72", "#EF4444"],
        ["_defaultAccent", "#3FB950", "#16A34A"],
        ["gold", "#F0B429", "#D97706"],
        ["goldMuted", "#9E6A03", "#92400E"],
        ["info", "#58A6FF", "#2563EB"],
        ["infoMuted", "#1F6FEB", "#1D4ED8"],
        ["warn", "#F0883E", "#D97706"]
    ]
    readonly property var accentFollowers: ["success", "actionCheck", "suitClubs"]

    Component {
        id: themeComponent

        Theme {}
    }

    Component {
        id: typographyComponent

        Typography {}
    }

    function makeTheme(dark) {
        return createTemporaryObject(themeComponent, testCase, {dark: dark})
    }

    function sameColor(actual, expected, what) {
        verify(Qt.colorEqual(actual, expected), what + ": " + actual + " is not " + expected)
    }

    function test_darkIsTheDefault() {
        verify(createTemporaryObject(themeComponent, testCase).dark)
    }

    function test_tokensInBothModes() {
        const dark = makeTheme(true)
        const light = makeTheme(false)
        for (const [token, darkValue, lightValue] of modeTokens) {
            sameColor(dark[token], darkValue, "dark " + token)
            sameColor(light[token], lightValue, "light " + token)
        }
    }

    function test_accentAndItsDerivedTokens() {
        for (const theme of [makeTheme(true), makeTheme(false)]) {
            sameColor(theme.accent, theme._defaultAccent, "accent")
            for (const token of accentFollowers)
                sameColor(theme[token], theme.accent, token)
            sameColor(theme.accentHover, Qt.lighter(theme.accent, 1.12), "accentHover")
            sameColor(theme.accentMuted, Qt.darker(theme.accent, theme.dark ? 1.6 : 1.35), "accentMuted")
        }
    }

    function test_accentOverride() {
        const theme = makeTheme(true)
        sameColor(theme.accentOverride, "#3FB950", "accentOverride default")
        theme.accentOverride = "#A371F7"
        sameColor(theme.accent, "#3FB950", "override off")
        theme.useAccentOverride = true
        sameColor(theme.accent, "#A371F7", "override on")
        for (const token of accentFollowers)
            sameColor(theme[token], "#A371F7", token)
        sameColor(theme.accentMuted, Qt.darker("#A371F7", 1.6), "accentMuted follows")
        theme.dark = false
        sameColor(theme.accent, "#A371F7", "override in light mode")
    }

    function test_otherTokens() {
        const dark = makeTheme(true)
        const light = makeTheme(false)
        const sizes = {radiusXs: 4, radiusSm: 8, radiusMd: 12, radiusLg: 16, radiusXl: 20, radiusFull: 9999,
                       spaceXs: 4, spaceSm: 8, spaceMd: 12, spaceLg: 16, spaceXl: 24, space2Xl: 32,
                       durationFast: 100, durationNormal: 200, durationSlow: 300}
        for (const token in sizes) {
            compare(dark[token], sizes[token], token)
            compare(light[token], sizes[token], token)
        }
        compare(dark.shadowOpacity, 0.5)
        compare(light.shadowOpacity, 0.15)
        compare(dark.shadowSm, "0 1px 2px rgba(0,0,0,0.5)")
        compare(light.shadowSm, "0 1px 2px rgba(0,0,0,0.1)")
        compare(dark.shadowMd, "0 4px 6px rgba(0,0,0,0.5)")
        compare(light.shadowMd, "0 4px 6px rgba(0,0,0,0.1)")
        compare(dark.shadowLg, "0 10px 15px rgba(0,0,0,0.5)")
        compare(light.shadowLg, "0 10px 15px rgba(0,0,0,0.1)")
        compare(dark.fontFamily, "Segoe UI, system-ui, -apple-system, sans-serif")
        compare(dark.fontMono, "JetBrains Mono, Cascadia Code, Consolas, monospace")
    }

    Component {
        id: metricsComponent

        TextMetrics {}
    }

    function widthIn(family, text) {
        const metrics = createTemporaryObject(metricsComponent, testCase, {text: text})
        metrics.font.family = family
        metrics.font.pixelSize = 13
        return metrics.advanceWidth
    }

    // Each list draws in its first installed member or a fall-back: the mono list in a fixed-pitch family.
    function test_fontListsDrawInAnInstalledFamily() {
        const theme = makeTheme(true)
        compare(widthIn(theme.fontMono, "iiii"), widthIn(theme.fontMono, "MMMM"), "the mono list is fixed pitch")
        verify(widthIn(theme.fontFamily, "iiii") < widthIn(theme.fontFamily, "MMMM"), "the text list is proportional")
    }

    function test_suitColor() {
        const theme = makeTheme(true)
        sameColor(theme.suitColor("s"), theme.suitSpades, "s")
        sameColor(theme.suitColor("Spades"), theme.suitSpades, "Spades")
        sameColor(theme.suitColor("H"), theme.suitHearts, "H")
        sameColor(theme.suitColor("hearts"), theme.suitHearts, "hearts")
        sameColor(theme.suitColor("d"), theme.suitDiamonds, "d")
        sameColor(theme.suitColor("DIAMONDS"), theme.suitDiamonds, "DIAMONDS")
        sameColor(theme.suitColor("c"), theme.accent, "c")
        sameColor(theme.suitColor("clubs"), theme.suitClubs, "clubs")
        sameColor(theme.suitColor("x"), theme.text, "x")
        sameColor(theme.suitColor(""), theme.text, "empty")
    }

    function test_plainActionColors() {
        for (const theme of [makeTheme(true), makeTheme(false)]) {
            sameColor(theme.actionColor("fold"), theme.actionFold, "fold")
            sameColor(theme.actionColor("Check"), theme.accent, "Check")
            sameColor(theme.actionColor("CALL"), theme.actionCall, "CALL")
            sameColor(theme.actionColor("bet"), theme.actionBet, "bet")
            sameColor(theme.actionColor("raise"), theme.actionRaise, "raise")
            for (const allIn of ["allin", "All-In", "all_in"])
                sameColor(theme.actionColor(allIn), theme.actionAllIn, allIn)
            sameColor(theme.actionColor(null), theme.textMuted, "null")
            sameColor(theme.actionColor(undefined), theme.textMuted, "undefined")
            sameColor(theme.actionColor("donk"), theme.textMuted, "unknown word")
            // The size needs a space before it; without one the word is not a known action.
            sameColor(theme.actionColor("bet50%"), theme.textMuted, "bet50%")
            // A size without its percent sign is no sized action either.
            sameColor(theme.actionColor("bet 50"), theme.textMuted, "bet 50")
        }
    }

    // Bet 50%: t = 50 / 200 = 0.25, hue 0.72 + 0.03, lightness 0.62 + 0.025 (dark) or 0.42 + 0.025 (light).
    function test_betShadeFollowsSize() {
        sameColor(makeTheme(true).actionColor("Bet 50%"), Qt.hsla(0.75, 0.70, 0.645, 1), "dark Bet 50%")
        sameColor(makeTheme(false).actionColor("Bet 50%"), Qt.hsla(0.75, 0.70, 0.445, 1), "light Bet 50%")
        sameColor(makeTheme(true).actionColor("bet 0%"), Qt.hsla(0.72, 0.70, 0.62, 1), "bet 0%")
        sameColor(makeTheme(true).actionColor("BET 12.5 %"), Qt.hsla(0.7275, 0.70, 0.62625, 1), "BET 12.5 %")
    }

    // Raise 200%: t = 1, hue 0.07 + 0.04, lightness 0.60 + 0.12 (dark) or 0.44 + 0.12 (light).
    function test_raiseShadeFollowsSize() {
        sameColor(makeTheme(true).actionColor("Raise 200%"), Qt.hsla(0.11, 0.78, 0.72, 1), "dark Raise 200%")
        sameColor(makeTheme(false).actionColor("Raise 200%"), Qt.hsla(0.11, 0.78, 0.56, 1), "light Raise 200%")
        // Sizes beyond 200% keep the last shade.
        sameColor(makeTheme(true).actionColor("raise 450%"), Qt.hsla(0.11, 0.78, 0.72, 1), "raise 450%")
    }

    function test_sizedColorsDifferFromThePlainOnes() {
        const theme = makeTheme(true)
        verify(!Qt.colorEqual(theme.actionColor("Bet 50%"), theme.actionColor("Bet 150%")))
        verify(!Qt.colorEqual(theme.actionColor("Raise 50%"), theme.actionColor("Raise 150%")))
        verify(!Qt.colorEqual(theme.actionColor("Bet 50%"), theme.actionBet))
    }

    function test_colorHelpers() {
        const theme = makeTheme(true)
        const faded = theme.withOpacity("#3FB950", 0.15)
        sameColor(faded, Qt.rgba(0x3F / 255, 0xB9 / 255, 0x50 / 255, 0.15), "withOpacity of a text colour")
        fuzzyCompare(theme.withOpacity(theme.danger, 0.5).a, 0.5, 0.01)
        sameColor(theme.withOpacity("#80FF0000", 1.0), "#FF0000", "withOpacity replaces the alpha")
        sameColor(theme.lighten("#336699", 0.2), Qt.lighter("#336699", 1.2), "lighten")
        sameColor(theme.darken("#336699", 0.2), Qt.darker("#336699", 1.2), "darken")
    }

    function test_typography() {
        const type = createTemporaryObject(typographyComponent, testCase)
        const scale = {displayLg: 36, displayMd: 30, displaySm: 24, headingLg: 20, headingMd: 18, headingSm: 16,
                       bodyLg: 15, bodyMd: 14, bodySm: 13, labelLg: 13, labelMd: 12, labelSm: 11, mono: 13,
                       h1: 30, h2: 20, h3: 18, body: 14, small: 12,
                       weightLight: 300, weightRegular: 400, weightMedium: 500, weightSemibold: 600,
                       weightBold: 700, weightExtrabold: 800,
                       lineHeightTight: 1.25, lineHeightNormal: 1.5, lineHeightRelaxed: 1.75,
                       trackingTight: -0.025, trackingNormal: 0, trackingWide: 0.025}
        for (const token in scale)
            compare(type[token], scale[token], token)
    }
}
