import QtQuick
import QtTest
import Kelvane

// TestCase itself is invisible, so the matrices under test are placed in this visible item.
Item {
    id: root

    width: 600
    height: 600

    TestCase {
        id: testCase

        name: "HandMatrix"
        when: windowShown

        Theme { id: darkTheme }
        Theme { id: lightTheme; dark: false }

        Component { id: matrixComponent; HandMatrix {} }

        SignalSpy { id: clickSpy; signalName: "handClicked" }
        SignalSpy { id: paintSpy; signalName: "handPainted" }
        SignalSpy { id: hoverSpy; signalName: "handHovered" }

        // The pointer starts each test outside every matrix, so that hover state does not carry over.
        function init() {
            mouseMove(root, root.width - 1, root.height - 1)
        }

        function cleanup() {
            for (const spy of [clickSpy, paintSpy, hoverSpy]) {
                spy.clear()
                spy.target = null
            }
        }

        function create(properties) {
            const matrix = createTemporaryObject(matrixComponent, root, properties || {})
            verify(matrix !== null, "matrix could not be created")
            return matrix
        }

        function createWatched(properties) {
            const matrix = create(properties)
            clickSpy.target = matrix
            paintSpy.target = matrix
            hoverSpy.target = matrix
            return matrix
        }

        function sameColor(actual, expected, what) {
            verify(Qt.colorEqual(actual, expected), what + ": got " + actual + ", expected " + expected)
        }

        function cell(matrix, hand) {
            const found = findChild(matrix, "cell_" + hand)
            verify(found !== null, "no cell for " + hand)
            return found
        }

        function segmentsOf(matrix, hand) {
            const mask = findChild(cell(matrix, hand), "mask")
            const segments = []
            for (let i = 0; i < mask.children.length; ++i) {
                if (mask.children[i].objectName === "segment")
                    segments.push(mask.children[i])
            }
            return segments.sort((a, b) => a.x - b.x)
        }

        function fillOf(segment) {
            return segment.children[0]
        }

        // The centre of a cell in the matrix's own coordinates.
        function centre(matrix, row, col) {
            const step = matrix.cellSize + matrix.cellSpacing
            return {x: col * step + matrix.cellSize / 2, y: row * step + matrix.cellSize / 2}
        }

        function press(matrix, row, col) {
            const point = centre(matrix, row, col)
            mousePress(matrix, point.x, point.y)
        }

        function moveTo(matrix, row, col) {
            const point = centre(matrix, row, col)
            mouseMove(matrix, point.x, point.y, -1, Qt.LeftButton)
        }

        function release(matrix, row, col) {
            const point = centre(matrix, row, col)
            mouseRelease(matrix, point.x, point.y)
        }

        function paintedHands() {
            const hands = []
            for (const call of paintSpy.signalArguments)
                hands.push(call[0])
            return hands
        }

        function test_defaults() {
            const matrix = create()
            compare(matrix.weightDisplayMode, "horizontalSpan")
            compare(matrix.editable, false)
            compare(matrix.selectable, false)
            compare(matrix.showLabels, true)
            compare(matrix.cellSize, 32)
            compare(matrix.cellSpacing, 2)
        }

        function test_handAtOrder() {
            const matrix = create()
            compare(matrix.handAt(0, 0), "AA")
            compare(matrix.handAt(0, 1), "AKs")
            compare(matrix.handAt(1, 0), "AKo")
            compare(matrix.handAt(3, 5), "J9s")
            compare(matrix.handAt(5, 3), "J9o")
            compare(matrix.handAt(12, 0), "A2o")
            compare(matrix.handAt(0, 12), "A2s")
            compare(matrix.handAt(12, 12), "22")
        }

        function test_cellsStandWhereHandAtPutsThem() {
            const matrix = create()
            const step = matrix.cellSize + matrix.cellSpacing
            for (const [row, col] of [[0, 1], [1, 0], [4, 4], [12, 7]]) {
                const found = cell(matrix, matrix.handAt(row, col))
                compare(found.x, col * step)
                compare(found.y, row * step)
                compare(found.width, matrix.cellSize)
            }
        }

        function test_implicitSize_data() {
            return [
                {tag: "default", cellSize: 32, cellSpacing: 2, expected: 440},
                {tag: "setup page", cellSize: 36, cellSpacing: 2, expected: 492},
                {tag: "results page", cellSize: 28, cellSpacing: 2, expected: 388},
                {tag: "wide gaps", cellSize: 20, cellSpacing: 5, expected: 320}
            ]
        }

        function test_implicitSize(data) {
            const matrix = create({cellSize: data.cellSize, cellSpacing: data.cellSpacing})
            compare(matrix.implicitWidth, data.expected)
            compare(matrix.implicitHeight, data.expected)
        }

        function test_indexAtCells() {
            const matrix = create({cellSize: 36, cellSpacing: 2})
            compare(matrix.indexAt(0, 0), 0)
            compare(matrix.indexAt(35.9, 35.9), 0)
            compare(matrix.indexAt(38, 0), 1)
            compare(matrix.indexAt(0, 38), 13)
            compare(matrix.indexAt(12 * 38 + 35, 12 * 38 + 35), 168)
        }

        function test_indexAtGapsAndOutside() {
            const matrix = create({cellSize: 36, cellSpacing: 2})
            compare(matrix.indexAt(36, 10), -1, "vertical gap")
            compare(matrix.indexAt(37.9, 10), -1, "end of the vertical gap")
            compare(matrix.indexAt(10, 36.5), -1, "horizontal gap")
            compare(matrix.indexAt(-1, 10), -1, "left of the grid")
            compare(matrix.indexAt(10, -0.5), -1, "above the grid")
            compare(matrix.indexAt(13 * 38, 10), -1, "right of the grid")
            compare(matrix.indexAt(10, 13 * 38 + 5), -1, "below the grid")
        }

        function test_baseFillsByKind() {
            const matrix = create({theme: darkTheme})
            sameColor(cell(matrix, "QQ").baseColor, darkTheme.surface3, "pair")
            sameColor(cell(matrix, "KQs").baseColor, darkTheme.surface2, "suited")
            sameColor(cell(matrix, "KQo").baseColor, darkTheme.surface, "offsuit")
        }

        function test_colorFor() {
            const matrix = create({theme: darkTheme, colors: {AA: "#123456"}})
            compare(matrix.colorFor("KK", 0), "transparent")
            compare(matrix.colorFor("KK", -1), "transparent")
            sameColor(matrix.colorFor("AA", 1.0), "#123456", "a colour of the map")
            const accent = matrix.colorFor("KK", 0.5)
            sameColor(Qt.rgba(accent.r, accent.g, accent.b, 1), darkTheme.accent, "accent")
            fuzzyCompare(accent.a, 0.4, 0.01)
            fuzzyCompare(matrix.colorFor("KK", 1.0).a, 0.8, 0.01)
        }

        function test_horizontalSpanMaskGrowsFromTheLeft() {
            const matrix = create({weights: {AKs: 0.5, QQ: 1.5, KK: -0.2}})
            const half = findChild(cell(matrix, "AKs"), "mask")
            const full = findChild(cell(matrix, "QQ"), "mask")
            verify(half.visible)
            compare(half.x, full.x)
            compare(half.height, full.height)
            fuzzyCompare(half.width, full.width / 2, 0.001)
            verify(!findChild(cell(matrix, "KK"), "mask").visible, "a negative weight shows no fill")
            verify(!findChild(cell(matrix, "22"), "mask").visible, "no weight shows no fill")
        }

        function test_verticalFillMaskGrowsFromTheBottom() {
            const matrix = create({weightDisplayMode: "verticalFill", weights: {AKs: 0.25, QQ: 1}})
            const quarter = findChild(cell(matrix, "AKs"), "mask")
            const full = findChild(cell(matrix, "QQ"), "mask")
            compare(quarter.width, full.width)
            fuzzyCompare(quarter.height, full.height / 4, 0.001)
            fuzzyCompare(quarter.y + quarter.height, full.y + full.height, 0.001)
        }

        function test_plainFillUsesTheColourMap() {
            const matrix = create({theme: darkTheme, weights: {AA: 1, KK: 1}, colors: {AA: "#E06C75"}})
            const aces = segmentsOf(matrix, "AA")
            compare(aces.length, 1)
            sameColor(fillOf(aces[0]).color, "#E06C75", "mapped colour")
            compare(fillOf(aces[0]).opacity, 1.0)
            sameColor(fillOf(segmentsOf(matrix, "KK")[0]).color, matrix.colorFor("KK", 1.0), "accent fill")
        }

        function test_mixedCellDrawsOneSegmentPerAction() {
            const matrix = create({
                theme: darkTheme,
                weights: {AKs: 1},
                actionTypes: ["fold", "call", "bet 50%"],
                actionProbs: {AKs: [0.2, 0.3, 0.5]}
            })
            const segments = segmentsOf(matrix, "AKs")
            compare(segments.length, 3)
            const maskWidth = findChild(cell(matrix, "AKs"), "mask").width
            fuzzyCompare(segments[0].x, 0, 0.001)
            fuzzyCompare(segments[0].width, 0.2 * maskWidth, 0.001)
            fuzzyCompare(segments[1].x, 0.2 * maskWidth, 0.001)
            fuzzyCompare(segments[1].width, 0.3 * maskWidth, 0.001)
            fuzzyCompare(segments[2].x, 0.5 * maskWidth, 0.001)
            fuzzyCompare(segments[2].width, 0.5 * maskWidth, 0.001)
            sameColor(fillOf(segments[0]).color, darkTheme.actionColor("fold"), "fold")
            sameColor(fillOf(segments[1]).color, darkTheme.actionColor("call"), "call")
            sameColor(fillOf(segments[2]).color, darkTheme.actionColor("bet 50%"), "sized bet")
            fuzzyCompare(fillOf(segments[0]).opacity, 0.85, 0.001)
        }

        function test_mixedSegmentsStayInsideAPartialMask() {
            const matrix = create({
                weights: {AKs: 0.5},
                actionTypes: ["check", "bet"],
                actionProbs: {AKs: [0.25, 0.75]}
            })
            const maskWidth = findChild(cell(matrix, "AKs"), "mask").width
            const segments = segmentsOf(matrix, "AKs")
            fuzzyCompare(segments[0].width, 0.25 * maskWidth, 0.001)
            fuzzyCompare(segments[1].x + segments[1].width, maskWidth, 0.001)
        }

        function test_lastSegmentTakesTheRemainder() {
            const matrix = create({
                weights: {AKs: 1},
                actionTypes: ["check", "bet", "raise"],
                actionProbs: {AKs: [-0.5, 0.3, 0.1]}
            })
            const maskWidth = findChild(cell(matrix, "AKs"), "mask").width
            const segments = segmentsOf(matrix, "AKs")
            fuzzyCompare(segments[0].width, 0, 0.001, "a negative probability draws nothing")
            fuzzyCompare(segments[1].x, 0, 0.001, "and does not move the next segment")
            fuzzyCompare(segments[2].x, 0.3 * maskWidth, 0.001)
            fuzzyCompare(segments[2].width, 0.7 * maskWidth, 0.001)
        }

        function test_wrongLengthDrawsThePlainFill() {
            const matrix = create({
                theme: darkTheme,
                weights: {AKs: 1, AQs: 1},
                actionTypes: ["check", "bet"],
                actionProbs: {AKs: [0.2, 0.3, 0.5], AQs: [0.5, 0.5]}
            })
            const plain = segmentsOf(matrix, "AKs")
            compare(plain.length, 1)
            sameColor(fillOf(plain[0]).color, matrix.colorFor("AKs", 1.0), "plain fill")
            compare(fillOf(plain[0]).opacity, 1.0)
            compare(segmentsOf(matrix, "AQs").length, 2)
        }

        function test_noActionTypesDrawsThePlainFill() {
            const matrix = create({weights: {AKs: 1}, actionTypes: [], actionProbs: {AKs: []}})
            compare(segmentsOf(matrix, "AKs").length, 1)
        }

        function test_labelsShowWithLabelsOrWeight() {
            const matrix = create({weights: {AKs: 0.5}})
            const weighted = findChild(cell(matrix, "AKs"), "label")
            const empty = findChild(cell(matrix, "72o"), "label")
            verify(weighted.visible)
            verify(empty.visible)
            compare(weighted.text, "AKs")
            compare(weighted.opacity, 1.0)
            fuzzyCompare(empty.opacity, 0.6, 0.001)
            matrix.showLabels = false
            verify(weighted.visible, "a weighted hand keeps its label")
            verify(!empty.visible, "an empty hand loses its label")
        }

        function test_labelSizeFollowsTheCellSize() {
            const large = create({cellSize: 36})
            fuzzyCompare(findChild(cell(large, "AA"), "label").font.pointSize, 11.25, 0.01)
            const small = create({cellSize: 28})
            fuzzyCompare(findChild(cell(small, "AA"), "label").font.pointSize, 10, 0.01)
        }

        function test_labelsStayInsideTheirCells_data() {
            return [
                {tag: "results page", cellSize: 28},
                {tag: "editor", cellSize: 30},
                {tag: "setup page", cellSize: 36}
            ]
        }

        function test_labelsStayInsideTheirCells(data) {
            const matrix = create({cellSize: data.cellSize})
            for (const hand of ["AQo", "KQo", "QQ", "72o"]) {
                const label = findChild(cell(matrix, hand), "label")
                verify(label.paintedWidth <= data.cellSize - 2, hand + " is " + label.paintedWidth + " wide")
            }
        }

        function test_labelHasARimOnlyOverAFill() {
            const matrix = create({theme: lightTheme, weights: {AKs: 0.5}})
            const filled = findChild(cell(matrix, "AKs"), "label")
            compare(filled.style, Text.Outline)
            sameColor(filled.styleColor, lightTheme.surface2, "rim in the suited base colour")
            compare(findChild(cell(matrix, "AKo"), "label").style, Text.Normal)
        }

        function test_labelFontAndColour() {
            const matrix = create({theme: lightTheme})
            const label = findChild(cell(matrix, "AA"), "label")
            sameColor(label.color, lightTheme.text, "label colour")
            compare(label.renderType, Text.NativeRendering)
        }

        function test_selectableClickEmitsHandClicked() {
            const matrix = createWatched({selectable: true, weights: {AKo: 0.25}})
            const point = centre(matrix, 1, 0)
            mouseClick(matrix, point.x, point.y)
            compare(clickSpy.count, 1)
            compare(clickSpy.signalArguments[0][0], "AKo")
            compare(clickSpy.signalArguments[0][1], 0.25)
            compare(paintSpy.count, 0)
        }

        function test_clickInAGapEmitsNothing() {
            const matrix = createWatched({selectable: true, cellSize: 30, cellSpacing: 4})
            mouseClick(matrix, 31, 10)
            compare(clickSpy.count, 0)
        }

        function test_plainMatrixIgnoresClicks() {
            const matrix = createWatched()
            const point = centre(matrix, 0, 0)
            mouseClick(matrix, point.x, point.y)
            compare(clickSpy.count, 0)
            compare(paintSpy.count, 0)
        }

        function test_editableMatrixPaintsInsteadOfClicking() {
            const matrix = createWatched({editable: true, selectable: true})
            press(matrix, 0, 0)
            release(matrix, 0, 0)
            compare(clickSpy.count, 0)
            compare(paintSpy.count, 1)
            compare(paintSpy.signalArguments[0][0], "AA")
            compare(paintSpy.signalArguments[0][1], true)
            compare(paintSpy.signalArguments[0][2], 0)
        }

        function test_dragFromAnEmptyCellOnlyAdds() {
            const matrix = createWatched({editable: true, weights: {AQs: 0.5, AJs: 1}})
            press(matrix, 0, 1)
            for (const col of [2, 3, 4, 5])
                moveTo(matrix, 0, col)
            release(matrix, 0, 5)
            compare(paintedHands(), ["AKs", "ATs", "A9s"])
            for (const call of paintSpy.signalArguments) {
                compare(call[1], true)
                compare(call[2], 0)
            }
        }

        function test_dragFromAFilledCellOnlyRemoves() {
            const matrix = createWatched({editable: true, weights: {AA: 1, KK: 0.5}})
            press(matrix, 0, 0)
            moveTo(matrix, 0, 1)
            moveTo(matrix, 1, 1)
            release(matrix, 1, 1)
            compare(paintedHands(), ["AA", "KK"])
            compare(paintSpy.signalArguments[1][1], false)
            compare(paintSpy.signalArguments[1][2], 0.5)
        }

        function test_dragVisitsACellOnceInARow() {
            const matrix = createWatched({editable: true, cellSize: 30, cellSpacing: 4})
            press(matrix, 0, 0)
            mouseMove(matrix, 20, 20, -1, Qt.LeftButton)
            mouseMove(matrix, 31, 20, -1, Qt.LeftButton)
            mouseMove(matrix, 25, 20, -1, Qt.LeftButton)
            mouseMove(matrix, 40, 20, -1, Qt.LeftButton)
            mouseRelease(matrix, 40, 20)
            compare(paintedHands(), ["AA", "AKs"], "the gap between the cells is not a new cell")
        }

        function test_moveAfterReleasePaintsNothing() {
            const matrix = createWatched({editable: true})
            press(matrix, 0, 0)
            release(matrix, 0, 0)
            moveTo(matrix, 0, 1)
            compare(paintedHands(), ["AA"])
        }

        function test_pressOutsideTheGridStartsNoDrag() {
            const matrix = createWatched({editable: true, cellSize: 30, cellSpacing: 4})
            mousePress(matrix, 32, 10)
            mouseMove(matrix, 50, 10, -1, Qt.LeftButton)
            mouseRelease(matrix, 50, 10)
            compare(paintSpy.count, 0)
        }

        function test_readOnlyMatrixPaintsNothing() {
            const matrix = createWatched()
            press(matrix, 0, 0)
            moveTo(matrix, 0, 1)
            release(matrix, 0, 1)
            compare(paintSpy.count, 0)
        }

        function test_hoverEmitsAndLiftsTheCell() {
            const matrix = createWatched({theme: darkTheme, weights: {KQs: 0.75}})
            const point = centre(matrix, 1, 2)
            mouseMove(matrix, point.x, point.y)
            compare(hoverSpy.count, 1)
            compare(hoverSpy.signalArguments[0][0], "KQs")
            compare(hoverSpy.signalArguments[0][1], 0.75)
            const hovered = cell(matrix, "KQs")
            verify(hovered.hovered)
            compare(hovered.z, 1)
            tryCompare(hovered, "scale", 1.1)
            mouseMove(matrix, point.x + 1, point.y)
            compare(hoverSpy.count, 1, "moving inside the same cell is no new hover")
            verify(!cell(matrix, "AA").hovered)
        }
    }
}
