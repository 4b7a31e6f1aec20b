import QtQuick
import QtTest
import Kelvane

// TestCase itself is invisible, so the cards under test are placed in this visible item.
Item {
    id: root

    width: 900
    height: 800

    TestCase {
        id: testCase

        name: "RangePanel"
        when: windowShown

        Theme { id: darkTheme }
        Theme { id: lightTheme; dark: false }
        Typography { id: typography }

        // Writes each edit back, as the Setup page does through the shell's range text.
        Component {
            id: panelComponent

            RangePanel {
                theme: darkTheme
                type: typography
                onRangeTextEdited: text => rangeText = text
            }
        }

        SignalSpy { id: editSpy; signalName: "rangeTextEdited" }

        function cleanup() {
            editSpy.clear()
            editSpy.target = null
        }

        function create(properties) {
            const panel = createTemporaryObject(panelComponent, root, properties || {})
            verify(panel !== null, "panel could not be created")
            editSpy.target = panel
            return panel
        }

        function sameColor(actual, expected, what) {
            verify(Qt.colorEqual(actual, expected), what + ": got " + actual + ", expected " + expected)
        }

        function part(panel, name) {
            const found = findChild(panel, name)
            verify(found !== null, "no " + name)
            return found
        }

        // A cell's centre in the matrix's coordinates, found by its hand.
        function centreOf(panel, hand) {
            const cell = part(panel.matrix, "cell_" + hand)
            return {x: cell.x + cell.width / 2, y: cell.y + cell.height / 2}
        }

        function click(panel, hand) {
            const point = centreOf(panel, hand)
            mouseClick(panel.matrix, point.x, point.y)
        }

        function drag(panel, hands) {
            const first = centreOf(panel, hands[0])
            mousePress(panel.matrix, first.x, first.y)
            for (const hand of hands.slice(1)) {
                const point = centreOf(panel, hand)
                mouseMove(panel.matrix, point.x, point.y, -1, Qt.LeftButton)
            }
            const last = centreOf(panel, hands[hands.length - 1])
            mouseRelease(panel.matrix, last.x, last.y)
        }

        // Types character by character, as a user would, so that every keystroke is its own edit.
        function typeText(text) {
            for (const character of text)
                keyClick(character)
        }

        function typeWeight(panel, text) {
            const field = part(panel, "weightField")
            mouseClick(field)
            verify(field.activeFocus)
            field.selectAll()
            keyClick(Qt.Key_Delete)
            typeText(text)
            return field
        }

        function test_defaults() {
            const panel = createTemporaryObject(panelComponent, root)
            compare(panel.player, "oop")
            compare(panel.rangeText, "")
            compare(panel.clickWeightPct, 100.0)
            compare(panel.matrix.cellSize, 36)
            compare(panel.matrix.editable, true)
        }

        function test_titleAndDotFollowThePlayer() {
            const oop = create({player: "oop"})
            compare(part(oop, "title").text, "OOP Range")
            sameColor(part(oop, "dot").color, darkTheme.actionBet, "OOP dot")
            const ip = create({player: "ip", theme: lightTheme})
            compare(part(ip, "title").text, "IP Range")
            sameColor(part(ip, "dot").color, lightTheme.info, "IP dot")
        }

        function test_librarySlotIsAnEmptySizedPlace() {
            const panel = create()
            const slot = panel.librarySlot
            compare(slot.objectName, "librarySlot")
            compare(slot.children.length, 0)
            verify(slot.width >= 200, "slot width " + slot.width)
            compare(slot.height, panel.matrix.height)
            verify(slot.x >= panel.matrix.x + panel.matrix.width, "the slot stands beside the matrix")
        }

        function test_cardIsAsWideAsMatrixAndSlot() {
            const panel = create()
            verify(panel.implicitWidth >= 492 + 200, "implicit width " + panel.implicitWidth)
            verify(panel.implicitHeight > 492, "implicit height " + panel.implicitHeight)
        }

        function test_matrixShowsTheParsedText() {
            const panel = create({rangeText: "QQ+, AKs:0.5, AK+"})
            compare(panel.matrix.weightOf("KK"), 1)
            compare(panel.matrix.weightOf("AKs"), 0.5)
            compare(panel.matrix.weightOf("AKo"), 0)
            panel.rangeText = "50%"
            compare(panel.matrix.weightOf("72o"), 0.5)
        }

        function test_plusOnTwoRanksPaintsNothing() {
            const panel = create({rangeText: "AK+"})
            for (const hand of ["AKs", "AKo", "AQs", "AA", "KK"]) {
                compare(panel.matrix.weightOf(hand), 0, hand)
                verify(!part(part(panel.matrix, "cell_" + hand), "mask").visible, hand + " is drawn empty")
            }
        }

        function test_clickAddsAtFullWeight() {
            const panel = create({rangeText: "AA"})
            click(panel, "88")
            compare(editSpy.count, 1)
            compare(panel.rangeText, "AA, 88")
        }

        function test_clickRemovesAHand() {
            const panel = create({rangeText: "AA, 88, KQs"})
            click(panel, "88")
            compare(panel.rangeText, "AA, KQs")
        }

        function test_dragFromAnEmptyCellLeavesFilledCellsAlone() {
            const panel = create({rangeText: "AQs:0.5, AJs"})
            drag(panel, ["AKs", "AQs", "AJs", "ATs"])
            compare(panel.rangeText, "AQs:0.5, AJs, AKs, ATs")
            compare(panel.matrix.weightOf("AQs"), 0.5)
            compare(editSpy.count, 2)
        }

        function test_dragFromAFilledCellOnlyRemoves() {
            const panel = create({rangeText: "AA, QQ, 22"})
            drag(panel, ["AA", "AKs", "KK", "QQ"])
            compare(panel.rangeText, "22")
        }

        function test_clickInAPercentageClearsTheRange() {
            const panel = create({rangeText: "50%"})
            click(panel, "T9s")
            compare(editSpy.count, 1)
            compare(editSpy.signalArguments[0][0], "")
            compare(panel.rangeText, "")
        }

        function test_clickOnAKsRemovesTheWholeAKToken() {
            const panel = create({rangeText: "AK, QQ"})
            click(panel, "AKs")
            compare(panel.rangeText, "QQ")
            compare(panel.matrix.weightOf("AKo"), 0)
        }

        function test_weightField_data() {
            return [
                {tag: "half", typed: "50", pct: 50, expected: "88:0.5"},
                {tag: "full", typed: "100", pct: 100, expected: "88"},
                {tag: "almost full", typed: "99.95", pct: 99.95, expected: "88"},
                {tag: "three decimals", typed: "12.345", pct: 12.345, expected: "88:0.123"},
                {tag: "zero", typed: "0", pct: 0, expected: "88:0"}
            ]
        }

        function test_weightField(data) {
            const panel = create()
            typeWeight(panel, data.typed)
            fuzzyCompare(panel.clickWeightPct, data.pct, 1e-9)
            click(panel, "88")
            compare(panel.rangeText, data.expected)
        }

        function test_weightFieldRefusesMoreThanThreeDecimals() {
            const panel = create()
            const field = typeWeight(panel, "12.3456")
            compare(field.text, "12.345")
        }

        function test_weightFieldWithoutNumberGivesFullWeight() {
            const panel = create({clickWeightPct: 40})
            const field = typeWeight(panel, "")
            compare(panel.clickWeightPct, 40, "an empty field changes nothing while typing")
            part(panel, "rangeField").forceActiveFocus()
            verify(!field.activeFocus)
            compare(panel.clickWeightPct, 100)
            compare(field.text, "100")
        }

        function test_weightFieldEmptiedAndReturnGivesFullWeight() {
            const panel = create({clickWeightPct: 40})
            const field = typeWeight(panel, "")
            keyClick(Qt.Key_Return)
            compare(panel.clickWeightPct, 100)
            compare(field.text, "100")
            click(panel, "88")
            compare(panel.rangeText, "88")
        }

        function test_weightFieldShortFormAfterReturn() {
            const panel = create()
            const field = typeWeight(panel, "5.50")
            keyClick(Qt.Key_Return)
            compare(panel.clickWeightPct, 5.5)
            compare(field.text, "5.5")
        }

        function test_weightFieldFollowsTheValueWhenUnfocused() {
            const panel = create()
            const field = part(panel, "weightField")
            compare(field.text, "100")
            compare(field.placeholderText, "100")
            panel.clickWeightPct = 62.5
            compare(field.text, "62.5")
        }

        function test_rangeFieldWritesEachEdit() {
            const panel = create()
            const field = part(panel, "rangeField")
            compare(field.placeholderText, "e.g., AA, KK, AKs, QQ+ or 50%")
            mouseClick(field)
            typeText("QQ+")
            compare(editSpy.count, 3)
            compare(editSpy.signalArguments.map(call => call[0]), ["Q", "QQ", "QQ+"])
            compare(panel.rangeText, "QQ+")
            compare(panel.matrix.weightOf("KK"), 1)
        }

        function test_rangeFieldFollowsTheTextAfterTyping() {
            const panel = create()
            const field = part(panel, "rangeField")
            mouseClick(field)
            typeText("AA")
            panel.rangeText = "KK, QQ"
            compare(field.text, "KK, QQ")
        }

        function test_longRangeIsElidedWhileUnfocused() {
            const longRange = "88+,A8s+,A5s-A2s:0.5,AJo+,ATo:0.75,K9s+,KQo,KJo:0.75,KTo:0.25,Q9s+,QJo:0.5,J8s+,"
                              + "JTo:0.25,T8s+,T7s:0.45,97s+,96s:0.45,87s,86s:0.75,85s:0.45"
            const panel = create({rangeText: longRange})
            const field = part(panel, "rangeField")
            const copy = part(field, "elidedCopy")
            verify(copy.visible)
            verify(copy.truncated, "the copy is cut short")
            verify(copy.width <= field.width)
            compare(panel.implicitWidth, create().implicitWidth, "a long range does not widen the card")
            compare(field.color.a, 0, "the field's own text is hidden")
            field.forceActiveFocus()
            verify(!copy.visible)
            sameColor(field.color, darkTheme.text, "the edited text shows")
        }

        function test_clearButtonEmptiesTheRange() {
            const panel = create({rangeText: "AA, KK"})
            const button = part(panel, "clearButton")
            compare(button.text, "Clear")
            mouseClick(button)
            compare(panel.rangeText, "")
            verify(!button.enabled, "nothing left to clear")
        }

        function test_worksWithoutThemeAndType() {
            const panel = createTemporaryObject(panelComponent, root, {theme: null, type: null, rangeText: "AA"})
            verify(panel !== null)
            sameColor(part(panel, "dot").color, darkTheme.actionBet, "dark fall-back")
            compare(part(panel, "title").font.pixelSize, typography.headingSm)
        }
    }
}
