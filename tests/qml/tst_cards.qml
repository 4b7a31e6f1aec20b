import QtQuick
import QtTest
import Kelvane

// TestCase itself is invisible, so the cards under test are placed in this visible item.
Item {
    id: root

    width: 640
    height: 480

    TestCase {
        id: testCase

        name: "Cards"
        when: windowShown

        Theme { id: darkTheme }
        Theme { id: lightTheme; dark: false }

        Component { id: playingCardComponent; PlayingCard {} }
        Component { id: boardComponent; BoardDisplay {} }
        Component { id: pickerComponent; CardPicker {} }

        SignalSpy { id: spy }

        // Hover state must not leak from one test into the next.
        function init() {
            mouseMove(root, root.width - 1, root.height - 1)
        }

        function cleanup() {
            spy.clear()
            spy.target = null
            spy.signalName = ""
        }

        function create(component, properties) {
            const item = createTemporaryObject(component, root, properties || {})
            verify(item !== null, "component could not be created")
            return item
        }

        function sameColor(actual, expected, what) {
            verify(Qt.colorEqual(actual, expected), what + ": got " + actual + ", expected " + expected)
        }

        function shownPart(card) {
            const parts = ["face", "back", "slot"].filter(part => findChild(card, part).visible)
            compare(parts.length, 1, "exactly one part of a card is shown")
            return parts[0]
        }

        function cornerRankText(card) {
            return findChild(card, "cornerRank").text
        }

        function spyOn(target, signalName) {
            spy.target = target
            spy.signalName = signalName
        }

        function test_playing_card_defaults() {
            const card = create(playingCardComponent)
            for (const flag of ["faceDown", "selected", "disabled", "mini"])
                compare(card[flag], false, flag)
            compare(card.rank, "")
            compare(card.suit, "")
            compare(card.hoverable, true)
            compare(card.sizeScale, 1.0)
            compare(card.enableHoverScale, true)
            compare(shownPart(card), "slot")
        }

        function test_playing_card_sizes_data() {
            return [
                { tag: "regular", mini: false, scale: 1.0, w: 52, h: 72 },
                { tag: "mini", mini: true, scale: 1.0, w: 32, h: 44 },
                { tag: "scaled", mini: false, scale: 1.25, w: 65, h: 90 },
                { tag: "scale floor", mini: false, scale: 0, w: 5.2, h: 7.2 }
            ]
        }

        function test_playing_card_sizes(data) {
            const card = create(playingCardComponent, { mini: data.mini, sizeScale: data.scale })
            fuzzyCompare(card.width, data.w, 1e-9)
            fuzzyCompare(card.height, data.h, 1e-9)
        }

        function test_playing_card_face() {
            const card = create(playingCardComponent, { theme: darkTheme, rank: "A", suit: "h" })
            compare(shownPart(card), "face")
            compare(cornerRankText(card), "A")
            compare(findChild(card, "cornerSuit").text, "♥")
            sameColor(findChild(card, "cornerRank").color, darkTheme.suitHearts, "rank colour")
            compare(findChild(card, "centreSuit").visible, true)
            card.mini = true
            compare(findChild(card, "centreSuit").visible, false)
        }

        function test_playing_card_spades_stay_dark_on_the_light_face() {
            const card = create(playingCardComponent, { theme: darkTheme, rank: "K", suit: "S" })
            compare(shownPart(card), "face")
            sameColor(findChild(card, "cornerRank").color, darkTheme.suitSpades, "spade colour")
        }

        function test_playing_card_with_a_rank_but_no_suit_shows_the_empty_slot() {
            const card = create(playingCardComponent, { rank: "A" })
            compare(shownPart(card), "slot")
            card.suit = "x"
            compare(shownPart(card), "slot")
            card.suit = "d"
            compare(shownPart(card), "face")
        }

        function test_playing_card_back() {
            const card = create(playingCardComponent, { theme: lightTheme, rank: "Q", suit: "c", faceDown: true })
            compare(shownPart(card), "back")
            sameColor(findChild(card, "back").color, lightTheme.cardBack, "back colour")
        }

        function test_playing_card_click() {
            const card = create(playingCardComponent, { rank: "T", suit: "s" })
            spyOn(card, "clicked")
            mouseClick(card)
            compare(spy.count, 1)
        }

        function test_disabled_playing_card_emits_nothing() {
            const card = create(playingCardComponent, { rank: "T", suit: "s", disabled: true })
            compare(card.opacity, 0.4)
            spyOn(card, "clicked")
            mouseClick(card)
            compare(spy.count, 0)
            mouseMove(card, card.width / 2, card.height / 2)
            wait(200)
            compare(card.scale, 1.0)
        }

        function test_playing_card_hover_scale() {
            const card = create(playingCardComponent, { rank: "9", suit: "d" })
            mouseMove(card, card.width / 2, card.height / 2)
            tryCompare(card, "scale", 1.05)
            mouseMove(root, root.width - 1, root.height - 1)
            tryCompare(card, "scale", 1.0)
            card.enableHoverScale = false
            mouseMove(card, card.width / 2, card.height / 2)
            wait(200)
            compare(card.scale, 1.0)
        }

        function test_board_defaults() {
            const board = create(boardComponent)
            compare(board.boardText, "")
            compare(board.editable, false)
            compare(board.clickableIndices, null)
            compare(board.compact, false)
            compare(board.cardScale, 1.0)
            compare(board.horizontalPadding, 10)
            board.compact = true
            compare(board.horizontalPadding, 0)
            compare(board.cards, ["", "", "", "", ""])
        }

        function test_board_parsing_data() {
            return [
                { tag: "flop", text: "AhKsQd", cards: ["Ah", "Ks", "Qd", "", ""], street: "Flop" },
                { tag: "turn", text: "AhKsQd2c", cards: ["Ah", "Ks", "Qd", "2c", ""], street: "Turn" },
                { tag: "river", text: "AhKsQd2c3h", cards: ["Ah", "Ks", "Qd", "2c", "3h"], street: "River" },
                { tag: "empty", text: "", cards: ["", "", "", "", ""], street: "Preflop" },
                { tag: "two cards", text: "AhKs", cards: ["Ah", "Ks", "", "", ""], street: "Preflop" },
                { tag: "spaces and case", text: "ah KS qD", cards: ["Ah", "Ks", "Qd", "", ""], street: "Flop" },
                { tag: "gap in flop", text: "Ah__Qd7c", cards: ["Ah", "", "Qd", "7c", ""], street: "Flop" },
                { tag: "not a card", text: "AhXyQd", cards: ["Ah", "", "Qd", "", ""], street: "Preflop" },
                { tag: "turn only", text: "______Ah", cards: ["", "", "", "Ah", ""], street: "Preflop" }
            ]
        }

        function test_board_parsing(data) {
            const board = create(boardComponent, { boardText: data.text })
            compare(board.cards, data.cards)
            compare(board.streetLabel, data.street)
            const label = findChild(board, "streetLabel")
            compare(label.text, data.street.toUpperCase())
            compare(label.visible, true)
            board.compact = true
            compare(label.visible, false)
        }

        function test_board_with_only_a_turn_card_data() {
            return [{ tag: "display", editable: false }, { tag: "editing", editable: true }]
        }

        function test_board_with_only_a_turn_card(data) {
            const board = create(boardComponent, { boardText: "______Ah", editable: data.editable })
            const turn = findChild(board, "slot3")
            compare(turn.visible, true)
            compare(shownPart(turn), "face")
            compare(cornerRankText(turn), "A")
            compare(turn.suit, "h")
            compare(shownPart(findChild(board, "slot4")), "slot")
            compare(board.cards.slice(0, 3), ["", "", ""])
            // The flop's tile stands only for a first card or for editing, and then holds three empty slots.
            compare(findChild(board, "flopTile").visible, data.editable)
            if (data.editable) {
                for (let i = 0; i < 3; ++i)
                    compare(shownPart(findChild(board, "slot" + i)), "slot")
            }
        }

        function test_board_compact_hides_empty_later_streets() {
            const board = create(boardComponent, { boardText: "AhKsQd", compact: true })
            compare(findChild(board, "flopTile").visible, true)
            compare(findChild(board, "slot3").visible, false)
            compare(findChild(board, "slot4").visible, false)
            compare(findChild(board, "slot0").mini, true)
            board.boardText = "AhKsQd2c"
            compare(findChild(board, "slot3").visible, true)
            compare(findChild(board, "slot4").visible, false)
            board.editable = true
            compare(findChild(board, "slot4").visible, true)
            board.compact = false
            board.editable = false
            board.boardText = ""
            compare(findChild(board, "slot3").visible, true)
            compare(findChild(board, "slot4").visible, true)
            compare(findChild(board, "flopTile").visible, false)
        }

        function test_board_card_scale() {
            const board = create(boardComponent, { boardText: "AhKsQd", cardScale: 1.25 })
            compare(findChild(board, "slot0").width, 65)
            compare(findChild(board, "slot4").height, 90)
        }

        function test_board_is_clickable() {
            const board = create(boardComponent)
            compare(board._isClickable(0), false)
            board.editable = true
            for (let i = 0; i < 5; ++i)
                compare(board._isClickable(i), true)
            board.clickableIndices = [3, 4]
            compare(board._isClickable(0), false)
            compare(board._isClickable(2), false)
            compare(board._isClickable(3), true)
            compare(board._isClickable(4), true)
            board.clickableIndices = []
            compare(board._isClickable(3), false)
        }

        function test_board_clicks_data() {
            return [
                { tag: "editable", editable: true, indices: null, click: 1, expected: [1] },
                { tag: "display only", editable: false, indices: null, click: 1, expected: [] },
                { tag: "listed index", editable: true, indices: [3], click: 3, expected: [3] },
                { tag: "unlisted index", editable: true, indices: [3], click: 0, expected: [] }
            ]
        }

        function test_board_clicks(data) {
            const board = create(boardComponent, { boardText: "AhKsQd2c", editable: data.editable,
                                                   clickableIndices: data.indices })
            spyOn(board, "cardClicked")
            mouseClick(findChild(board, "slot" + data.click))
            compare(spy.count, data.expected.length)
            if (data.expected.length > 0)
                compare(spy.signalArguments[0][0], data.expected[0])
        }

        function test_board_river_waits_for_a_turn() {
            const board = create(boardComponent, { boardText: "AhKsQd", editable: true })
            const river = findChild(board, "slot4")
            compare(river.disabled, true)
            spyOn(board, "cardClicked")
            mouseClick(river)
            compare(spy.count, 0)
            mouseClick(findChild(board, "slot3"))
            compare(spy.count, 1)
            compare(spy.signalArguments[0][0], 3)
            board.boardText = "AhKsQd2c"
            compare(river.disabled, false)
            mouseClick(river)
            compare(spy.count, 2)
            compare(spy.signalArguments[1][0], 4)
            board.editable = false
            board.boardText = "AhKsQd"
            compare(river.disabled, false)
        }

        function test_picker_layout() {
            const picker = create(pickerComponent)
            compare(picker.usedCards.length, 0)
            compare(picker.showSuitHeaders, true)
            for (const suit of ["s", "h", "d", "c"]) {
                compare(findChild(picker, "suitHeader_" + suit).visible, true)
                for (const rank of ["A", "K", "Q", "J", "T", "9", "8", "7", "6", "5", "4", "3", "2"]) {
                    const tile = findChild(picker, "tile_" + rank + suit)
                    verify(tile !== null, "tile " + rank + suit)
                    compare(tile.width, 28)
                    compare(tile.height, 28)
                }
            }
            const aceOfSpades = findChild(picker, "tile_As")
            const twoOfClubs = findChild(picker, "tile_2c")
            verify(twoOfClubs.mapToItem(picker, 0, 0).x > aceOfSpades.mapToItem(picker, 0, 0).x, "A to 2")
            verify(twoOfClubs.mapToItem(picker, 0, 0).y > aceOfSpades.mapToItem(picker, 0, 0).y, "s first, c last")
            const widthWithHeaders = picker.implicitWidth
            picker.showSuitHeaders = false
            compare(findChild(picker, "suitHeader_s").visible, false)
            tryVerify(() => picker.implicitWidth < widthWithHeaders, 1000, "the headers take no room when hidden")
        }

        function test_picker_emits_a_free_card() {
            const picker = create(pickerComponent, { usedCards: ["Ah"] })
            spyOn(picker, "cardSelected")
            mouseClick(findChild(picker, "tile_Ks"))
            compare(spy.count, 1)
            compare(spy.signalArguments[0][0], "Ks")
        }

        function test_picker_refuses_a_used_card_data() {
            return [{ tag: "as written", used: "Ah" }, { tag: "upper-case suit", used: "AH" }]
        }

        function test_picker_refuses_a_used_card(data) {
            const picker = create(pickerComponent, { theme: darkTheme, usedCards: ["Kd", data.used] })
            const tile = findChild(picker, "tile_Ah")
            compare(tile.used, true)
            sameColor(tile.color, darkTheme.surface3, "used fill")
            sameColor(tile.textColor, darkTheme.textFaint, "used text")
            compare(findChild(tile, "tileArea").cursorShape, Qt.ForbiddenCursor)
            spyOn(picker, "cardSelected")
            mouseClick(tile)
            compare(spy.count, 0)
            mouseMove(tile, tile.width / 2, tile.height / 2)
            wait(200)
            compare(tile.scale, 1.0)
        }

        function test_picker_hover_scale() {
            const picker = create(pickerComponent)
            const tile = findChild(picker, "tile_7h")
            mouseMove(tile, tile.width / 2, tile.height / 2)
            tryCompare(tile, "scale", 1.1)
        }

        function test_picker_suit_colours_data() {
            return [{ tag: "dark", theme: darkTheme }, { tag: "light", theme: lightTheme }]
        }

        function test_picker_suit_colours(data) {
            const picker = create(pickerComponent, { theme: data.theme })
            const spadeInk = data.theme.dark ? data.theme.text : data.theme.suitSpades
            sameColor(findChild(picker, "tile_As").textColor, spadeInk, "spades")
            sameColor(findChild(picker, "tile_Ah").textColor, data.theme.suitHearts, "hearts")
            sameColor(findChild(picker, "tile_Ad").textColor, data.theme.suitDiamonds, "diamonds")
            sameColor(findChild(picker, "tile_Ac").textColor, data.theme.suitClubs, "clubs")
        }

        function test_picker_without_theme_keeps_spades_visible() {
            const picker = create(pickerComponent)
            sameColor(findChild(picker, "tile_As").textColor, darkTheme.text, "spades on dark tiles")
        }
    }
}
