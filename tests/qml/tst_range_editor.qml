import QtQuick
import QtTest
import Kelvane

// TestCase itself is invisible, so the editors under test are placed in this visible item.
Item {
    id: root

    width: 700
    height: 700

    TestCase {
        id: testCase

        name: "RangeEditor"
        when: windowShown

        Theme { id: darkTheme }

        Component { id: editorComponent; RangeEditor { theme: darkTheme } }

        SignalSpy { id: changeSpy; signalName: "rangeChanged" }

        function cleanup() {
            changeSpy.clear()
            changeSpy.target = null
        }

        function create(properties) {
            const editor = createTemporaryObject(editorComponent, root, properties || {})
            verify(editor !== null, "editor could not be created")
            changeSpy.target = editor
            return editor
        }

        function part(editor, name) {
            const found = findChild(editor, name)
            verify(found !== null, "no " + name)
            return found
        }

        function clickHand(editor, hand) {
            const matrix = part(editor, "matrix")
            const cell = part(matrix, "cell_" + hand)
            mouseClick(matrix, cell.x + cell.width / 2, cell.y + cell.height / 2)
        }

        // Types character by character, as a user would, so that every keystroke is its own edit.
        function typeText(text) {
            for (const character of text)
                keyClick(character)
        }

        function positiveHands(weights) {
            return Object.keys(weights).filter(hand => weights[hand] > 0)
        }

        function test_defaults() {
            const editor = create()
            compare(editor.label, "Range")
            compare(part(editor, "label").text, "Range")
            compare(editor.rangeText, "")
            const matrix = part(editor, "matrix")
            compare(matrix.cellSize, 30)
            verify(matrix.selectable)
            verify(!matrix.editable)
        }

        function test_parseRangeTextPlusOnlyForPairs() {
            const editor = create()
            compare(positiveHands(editor.parseRangeText("QQ+")), ["AA", "KK", "QQ"])
            compare(positiveHands(editor.parseRangeText("A8s+")), [])
            compare(positiveHands(editor.parseRangeText("AK+")), [])
        }

        function test_parseRangeTextHandsAndCase() {
            const editor = create()
            // A map has no order of its own; the written order shows in the text that a click rewrites.
            compare(positiveHands(editor.parseRangeText("AK, 77, kqs")).sort(), ["77", "AKo", "AKs", "KQs"])
            compare(positiveHands(editor.parseRangeText("A5s-A2s")), [], "no dash ranges")
        }

        function test_parseRangeTextDoesNotClamp() {
            const editor = create()
            compare(editor.parseRangeText("AA:1.5, KK:0.25")["AA"], 1.5)
            compare(editor.parseRangeText("AA:1.5, KK:0.25")["KK"], 0.25)
            compare(editor.parseRangeText("150%")["72o"], 1.5)
            compare(Object.keys(editor.parseRangeText("50%")).length, 169)
        }

        function test_handCount() {
            const editor = create({rangeText: "AA, AK, KK:0"})
            compare(part(editor, "handCount").text, "3 hands")
            editor.rangeText = "25%"
            compare(part(editor, "handCount").text, "169 hands")
            editor.rangeText = ""
            compare(part(editor, "handCount").text, "0 hands")
        }

        function test_presetButtons_data() {
            return [
                {tag: "full", button: "100%", expected: "100%"},
                {tag: "half", button: "50%", expected: "50%"},
                {tag: "quarter", button: "25%", expected: "25%"},
                {tag: "clear", button: "Clear", expected: ""}
            ]
        }

        function test_presetButtons(data) {
            const editor = create({rangeText: "AA"})
            const button = part(editor, "preset_" + data.button)
            compare(button.text, data.button)
            mouseClick(button)
            compare(editor.rangeText, data.expected)
            compare(changeSpy.count, 1)
            compare(changeSpy.signalArguments[0][0], data.expected)
        }

        function test_clickAddsAHandAndDropsWeights() {
            const editor = create({rangeText: "AA:0.5, KK"})
            clickHand(editor, "QQ")
            compare(editor.rangeText, "AA, KK, QQ")
            compare(changeSpy.signalArguments[0][0], "AA, KK, QQ")
        }

        function test_clickKeepsTheWrittenOrder() {
            const editor = create({rangeText: "AK, 77, kqs"})
            clickHand(editor, "22")
            compare(editor.rangeText, "AKs, AKo, 77, KQs, 22")
            clickHand(editor, "AKo")
            compare(editor.rangeText, "AKs, 77, KQs, 22")
        }

        function test_clickRemovesAHand() {
            const editor = create({rangeText: "AA, KK, QQ"})
            clickHand(editor, "KK")
            compare(editor.rangeText, "AA, QQ")
        }

        function test_clickInAPercentageListsTheOtherHands() {
            const editor = create({rangeText: "50%"})
            clickHand(editor, "AA")
            const hands = editor.rangeText.split(", ")
            compare(hands.length, 168)
            verify(hands.indexOf("AA") < 0)
        }

        function test_longRangeStaysInsideTheEditor() {
            const longRange = "AA, KK, QQ, JJ, TT, 99, 88, 77, 66, 55, 44, 33, 22, AKs, AQs, AJs, ATs, A9s, A8s, "
                              + "A7s, KQs, KJs, KTs, QJs, QTs, JTs, AKo, AQo, AJo, KQo"
            const editor = create({rangeText: longRange})
            const field = part(editor, "rangeField")
            const copy = part(field, "elidedCopy")
            verify(copy.truncated, "the copy is cut short")
            compare(editor.implicitWidth, create().implicitWidth, "a long range does not widen the editor")
        }

        function test_textFieldWritesTheRange() {
            const editor = create()
            const field = part(editor, "rangeField")
            mouseClick(field)
            typeText("JJ+")
            compare(editor.rangeText, "JJ+")
            compare(changeSpy.count, 3)
            compare(part(editor, "handCount").text, "4 hands")
        }
    }
}
