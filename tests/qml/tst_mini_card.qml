import QtQuick
import QtTest
import Kelvane

// TestCase itself is invisible, so the cards under test are placed in this visible item.
Item {
    id: root

    width: 320
    height: 240

    TestCase {
        id: testCase

        name: "MiniCard"
        when: windowShown

        Theme { id: darkTheme }
        Theme { id: lightTheme; dark: false }

        Component { id: miniComponent; MiniCard {} }
        Component { id: playingCardComponent; PlayingCard { mini: true } }

        function create(component, properties) {
            const item = createTemporaryObject(component, root, properties)
            verify(item !== null, "component could not be created")
            return item
        }

        function sameColor(actual, expected, what) {
            verify(Qt.colorEqual(actual, expected), what + ": got " + actual + ", expected " + expected)
        }

        function test_sizeMatchesAMiniPlayingCard_data() {
            return [{tag: "plain", scale: 1.0}, {tag: "list row", scale: 0.8}, {tag: "scale floor", scale: 0}]
        }

        function test_sizeMatchesAMiniPlayingCard(data) {
            const mini = create(miniComponent, {theme: darkTheme, rank: "A", suit: "s", sizeScale: data.scale})
            const card = create(playingCardComponent, {theme: darkTheme, rank: "A", suit: "s", sizeScale: data.scale})
            fuzzyCompare(mini.implicitWidth, card.implicitWidth, 1e-6)
            fuzzyCompare(mini.implicitHeight, card.implicitHeight, 1e-6)
        }

        function test_cornerShowsRankAndSuitInTheSuitColour_data() {
            return [
                {tag: "spades", suit: "s", symbol: "♠"},
                {tag: "hearts", suit: "h", symbol: "♥"},
                {tag: "diamonds", suit: "d", symbol: "♦"},
                {tag: "clubs upper case", suit: "C", symbol: "♣"}
            ]
        }

        function test_cornerShowsRankAndSuitInTheSuitColour(data) {
            const card = create(miniComponent, {theme: lightTheme, rank: "T", suit: data.suit})
            const rank = findChild(card, "cornerRank")
            const symbol = findChild(card, "cornerSuit")
            compare(rank.text, "T")
            compare(symbol.text, data.symbol)
            sameColor(rank.color, lightTheme.suitColor(data.suit), "rank colour")
            sameColor(symbol.color, lightTheme.suitColor(data.suit), "symbol colour")
        }

        // The corner sits where a mini PlayingCard has it, at the same type sizes.
        function test_cornerLinesUpWithAMiniPlayingCard() {
            const mini = create(miniComponent, {theme: darkTheme, rank: "K", suit: "h", sizeScale: 0.8})
            const card = create(playingCardComponent, {theme: darkTheme, rank: "K", suit: "h", sizeScale: 0.8})
            for (const part of ["cornerRank", "cornerSuit"]) {
                const ours = findChild(mini, part)
                const theirs = findChild(card, part)
                compare(ours.font.pixelSize, theirs.font.pixelSize, part)
                const at = ours.mapToItem(mini, 0, 0)
                const expected = theirs.mapToItem(card, 0, 0)
                fuzzyCompare(at.x, expected.x, 0.5, part + " x")
                fuzzyCompare(at.y, expected.y, 0.5, part + " y")
            }
        }

        function test_faceUsesTheCardTokens_data() {
            return [{tag: "dark", theme: darkTheme}, {tag: "light", theme: lightTheme}]
        }

        function test_faceUsesTheCardTokens(data) {
            const card = create(miniComponent, {theme: data.theme, rank: "2", suit: "c"})
            const face = findChild(card, "face")
            compare(face.radius, data.theme.radiusSm)
            sameColor(face.border.color, data.theme.cardBorder, "border")
            sameColor(face.gradient.stops[0].color, data.theme.cardFace, "face at the top")
            const shadow = findChild(card, "shadow")
            fuzzyCompare(shadow.color.a, data.theme.shadowOpacity * card._shadowStrength, 0.01)
            verify(shadow.y + shadow.height > face.height, "the shadow shows under the face")
        }

        function test_newCardUpdatesInPlace() {
            const card = create(miniComponent, {theme: darkTheme, rank: "A", suit: "s"})
            const rank = findChild(card, "cornerRank")
            card.rank = "9"
            card.suit = "d"
            verify(findChild(card, "cornerRank") === rank, "the same text item shows the new card")
            compare(rank.text, "9")
            compare(findChild(card, "cornerSuit").text, "♦")
            sameColor(rank.color, darkTheme.suitDiamonds, "diamond colour")
        }
    }
}
