import QtQuick
import QtTest
import Kelvane

// TestCase itself is invisible, so the bars under test are placed in this visible item.
Item {
    id: root

    width: 800
    height: 300

    TestCase {
        id: testCase

        name: "ActionBar"
        when: windowShown

        Theme { id: darkTheme }
        Theme { id: lightTheme; dark: false }

        Component { id: barComponent; ActionBar {} }

        SignalSpy { id: clickSpy; signalName: "actionClicked" }
        SignalSpy { id: hoverSpy; signalName: "actionHovered" }

        readonly property var threeActions: [
            {name: "Check", actionType: "check", frequency: 0.25, combos: 12, equity: 0.4567, ev: 1.234},
            {name: "Bet 75%", actionType: "bet", frequency: 0.5, combos: 20.25, equity: 0.5, ev: -0.5},
            {name: "Raise 250%", actionType: "raise", frequency: 0.25, combos: 3.0000004, equity: 0.61, ev: 0}
        ]

        function init() {
            mouseMove(root, root.width - 1, root.height - 1)
        }

        function cleanup() {
            for (const spy of [clickSpy, hoverSpy]) {
                spy.clear()
                spy.target = null
            }
        }

        function create(properties) {
            const bar = createTemporaryObject(barComponent, root, properties || {})
            verify(bar !== null, "bar could not be created")
            return bar
        }

        function actionsWith(frequencies) {
            const list = []
            for (let i = 0; i < frequencies.length; ++i)
                list.push({name: "Action " + i, actionType: "check", frequency: frequencies[i]})
            return list
        }

        function segment(bar, index) {
            const found = findChild(bar, "segment_" + index)
            verify(found !== null, "no segment " + index)
            return found
        }

        function shapeOf(bar, index) {
            return findChild(segment(bar, index), "shape")
        }

        function labelPart(bar, index, part) {
            const label = findChild(bar, "label_" + index)
            verify(label !== null, "no label " + index)
            const found = findChild(label, part)
            verify(found !== null, "no " + part + " in label " + index)
            return found
        }

        function sameColor(actual, expected, what) {
            verify(Qt.colorEqual(actual, expected), what + ": got " + actual + ", expected " + expected)
        }

        function compareList(actual, expected, what) {
            compare(actual.length, expected.length, what + ": length")
            for (let i = 0; i < expected.length; ++i)
                fuzzyCompare(actual[i], expected[i], 1e-9, what + " [" + i + "]")
        }

        function test_defaults() {
            const bar = create()
            compare(bar.showLabels, true)
            compare(bar.interactive, false)
            compare(bar.selectedAction, -1)
            compare(bar.actions.length, 0)
        }

        function test_implicitHeight_data() {
            return [
                {tag: "with labels", showLabels: true, height: 40},
                {tag: "without labels", showLabels: false, height: 24}
            ]
        }

        function test_implicitHeight(data) {
            const bar = create({width: 400, theme: darkTheme, actions: threeActions, showLabels: data.showLabels})
            compare(bar.implicitHeight, data.height)
            compare(bar.height, data.height)
            compare(findChild(bar, "labels").visible, data.showLabels)
        }

        function test_labelsToggleChangesHeight() {
            const bar = create({width: 400, theme: darkTheme, actions: threeActions})
            bar.showLabels = false
            compare(bar.implicitHeight, 24)
            compare(findChild(bar, "bar").height, 24)
            bar.showLabels = true
            compare(bar.implicitHeight, 40)
            compare(findChild(bar, "bar").height, 24, "the labels take the space under the bar")
        }

        function test_normalizedFrequencies_data() {
            return [
                {tag: "sum above one", frequencies: [0.6, 0.9], expected: [0.4, 0.6]},
                {tag: "sum below one", frequencies: [0.2, 0.3], expected: [0.4, 0.6]},
                {tag: "exact", frequencies: [0.25, 0.5, 0.25], expected: [0.25, 0.5, 0.25]},
                {tag: "negative counts as zero", frequencies: [-0.5, 0.5, 0.5], expected: [0, 0.5, 0.5]},
                {tag: "not a number counts as zero", frequencies: [NaN, 1], expected: [0, 1]},
                {tag: "missing counts as zero", frequencies: [undefined, 2], expected: [0, 1]},
                {tag: "numeric text", frequencies: ["0.5", "1.5"], expected: [0.25, 0.75]},
                {tag: "single", frequencies: [0.3], expected: [1]},
                {tag: "all zero", frequencies: [0, 0], expected: [0, 0]},
                {tag: "all negative", frequencies: [-1, -2], expected: [0, 0]},
                {tag: "empty", frequencies: [], expected: []}
            ]
        }

        function test_normalizedFrequencies(data) {
            const bar = create({width: 200, actions: actionsWith(data.frequencies)})
            compareList(bar._normalizedFrequencies(bar.actions), data.expected, "fractions")
            let total = 0
            for (let i = 0; i < data.expected.length; ++i) {
                fuzzyCompare(segment(bar, i).width, Math.round(data.expected[i] * 200), 1, "segment " + i)
                total += segment(bar, i).width
            }
            compare(total, data.expected.length > 0 && data.expected.some(f => f > 0) ? 200 : 0, "the bar fills")
        }

        // The controller hands over lists that are not script arrays; the bar reads them by index alone.
        function test_listReadByIndexOnly() {
            const arrayLike = {length: 2, 0: {name: "Fold", actionType: "fold", frequency: 1},
                               1: {name: "Call", actionType: "call", frequency: 3}}
            const bar = create({width: 400, theme: darkTheme, actions: arrayLike})
            compareList(bar._geometry.fractions, [0.25, 0.75], "fractions")
            compare(segment(bar, 1).width, 300)
            compare(labelPart(bar, 1, "name").text, "Call")
            sameColor(shapeOf(bar, 0).color, darkTheme.actionFold, "first segment")
        }

        function test_segmentEdgesOnWholePixels() {
            const bar = create({width: 301, actions: actionsWith([1, 1, 1])})
            compare(bar._geometry.edges, [0, 100, 201, 301])
            compare(segment(bar, 0).x, 0)
            compare(segment(bar, 1).x, 100)
            compare(segment(bar, 2).x + segment(bar, 2).width, 301)
        }

        function test_visibleEnds_data() {
            return [
                {tag: "all wide", widths: [100, 50, 150], first: 0, last: 2},
                {tag: "sliver first", widths: [0.3, 150, 149.7], first: 1, last: 2},
                {tag: "sliver last", widths: [150, 149.7, 0.3], first: 0, last: 1},
                {tag: "slivers both ends", widths: [0.5, 299, 0.5], first: 1, last: 1},
                {tag: "zero ends", widths: [0, 100, 200, 0], first: 1, last: 2},
                {tag: "exactly one pixel", widths: [1, 298, 1], first: 0, last: 2},
                {tag: "only slivers", widths: [0.3, 0, 0.6], first: 0, last: 2},
                {tag: "nothing drawn", widths: [0, 0], first: -1, last: -1},
                {tag: "empty", widths: [], first: -1, last: -1}
            ]
        }

        function test_visibleEnds(data) {
            const bar = create()
            const ends = bar._visibleEnds(data.widths)
            compare(ends.first, data.first, "first")
            compare(ends.last, data.last, "last")
        }

        function test_sliverDoesNotTakeRoundedEnd_data() {
            return [
                {tag: "sliver at the start", frequencies: [0.001, 0.5, 0.499], first: 1, last: 2},
                {tag: "sliver at the end", frequencies: [0.499, 0.5, 0.001], first: 0, last: 1}
            ]
        }

        function test_sliverDoesNotTakeRoundedEnd(data) {
            const bar = create({width: 300, showLabels: false, actions: actionsWith(data.frequencies)})
            const sliver = data.first === 1 ? 0 : 2
            compare(segment(bar, sliver).roundedLeft, false)
            compare(segment(bar, sliver).roundedRight, false)
            compare(shapeOf(bar, sliver).radius, 0, "the sliver stays square")
            compare(segment(bar, data.first).roundedLeft, true, "the first wide segment is rounded on the left")
            compare(segment(bar, data.last).roundedRight, true, "the last wide segment is rounded on the right")
        }

        function test_segmentRadius_data() {
            return [
                {tag: "theme radius", width: 100, height: 24, radius: 8},
                {tag: "half the height", width: 100, height: 10, radius: 5},
                {tag: "half the width", width: 6, height: 24, radius: 3},
                {tag: "zero width", width: 0, height: 24, radius: 0},
                {tag: "zero height", width: 100, height: 0, radius: 0}
            ]
        }

        function test_segmentRadius(data) {
            for (const theme of [darkTheme, lightTheme]) {
                const bar = create({theme: theme})
                compare(bar._segmentRadius(data.width, data.height), data.radius)
            }
        }

        function test_thinBarRadius() {
            const bar = create({width: 300, height: 10, showLabels: false, actions: actionsWith([1, 1])})
            compare(shapeOf(bar, 0).radius, 5)
            compare(shapeOf(bar, 1).radius, 5)
        }

        function test_singleSegmentIsPill_data() {
            return [
                {tag: "one action", frequencies: [0.7], index: 0},
                {tag: "one of three above zero", frequencies: [0, 0.4, 0], index: 1}
            ]
        }

        function test_singleSegmentIsPill(data) {
            const bar = create({width: 300, theme: darkTheme, showLabels: false, actions: actionsWith(data.frequencies)})
            const only = segment(bar, data.index)
            const shape = shapeOf(bar, data.index)
            compare(only.width, 300)
            compare(only.roundedLeft, true)
            compare(only.roundedRight, true)
            compare(shape.radius, darkTheme.radiusSm)
            compare(shape.x, 0)
            compare(shape.width, 300, "both ends round inside the segment")
        }

        function test_cornersFirstLeftLastRight() {
            const bar = create({width: 300, theme: darkTheme, showLabels: false, actions: actionsWith([1, 1, 1])})
            const r = darkTheme.radiusSm
            compare(shapeOf(bar, 0).radius, r)
            compare(shapeOf(bar, 0).x, 0, "the first is rounded on the left")
            compare(shapeOf(bar, 0).width, 100 + r, "its right corners run past the edge and are cut off")
            verify(segment(bar, 0).clip)
            compare(shapeOf(bar, 1).radius, 0, "a middle segment is square")
            compare(shapeOf(bar, 2).x, -r, "the last is rounded on the right only")
            compare(shapeOf(bar, 2).width, 100 + r)
            verify(segment(bar, 2).clip)
        }

        function test_emptyShowsTrack_data() {
            return [
                {tag: "no actions", frequencies: []},
                {tag: "all zero", frequencies: [0, 0]}
            ]
        }

        function test_emptyShowsTrack(data) {
            const bar = create({width: 300, theme: lightTheme, actions: actionsWith(data.frequencies)})
            const track = findChild(bar, "track")
            verify(track.visible)
            sameColor(track.color, lightTheme.surface3, "track")
            bar.actions = actionsWith([1])
            verify(!track.visible, "segments cover the track")
        }

        function test_showsPercent_data() {
            return [
                {tag: "wide", width: 100, fraction: 0.5, text: 20, shown: true},
                {tag: "exactly 35 pixels", width: 35, fraction: 0.5, text: 10, shown: false},
                {tag: "just over 35", width: 36, fraction: 0.5, text: 20, shown: true},
                {tag: "text plus 8 fills it", width: 40, fraction: 0.5, text: 32, shown: true},
                {tag: "text plus 8 too wide", width: 40, fraction: 0.5, text: 33, shown: false},
                {tag: "rounds to zero", width: 100, fraction: 0.004, text: 10, shown: false},
                {tag: "zero", width: 100, fraction: 0, text: 10, shown: false}
            ]
        }

        function test_showsPercent(data) {
            const bar = create()
            compare(bar._showsPercent(data.width, data.fraction, data.text), data.shown)
        }

        function test_percentTextByWidth_data() {
            return [
                {tag: "wide bar", width: 400, shown: [true, true, true]},
                {tag: "narrow bar", width: 60, shown: [false, false, false]},
                {tag: "middle only", width: 120, shown: [false, true, false]}
            ]
        }

        function test_percentTextByWidth(data) {
            const bar = create({width: data.width, theme: darkTheme, actions: threeActions})
            const expectedTexts = ["25%", "50%", "25%"]
            for (let i = 0; i < 3; ++i) {
                const percent = findChild(segment(bar, i), "percent")
                compare(percent.visible, data.shown[i], "segment " + i + " of " + segment(bar, i).width + " px")
                compare(percent.text, expectedTexts[i])
            }
        }

        function test_percentHiddenOnThinBar() {
            const bar = create({width: 400, height: 8, showLabels: false, theme: darkTheme, actions: threeActions})
            for (let i = 0; i < 3; ++i)
                verify(!findChild(segment(bar, i), "percent").visible, "segment " + i + " is too thin for text")
        }

        function test_percentTextStyle() {
            const bar = create({width: 400, theme: lightTheme, actions: threeActions})
            const percent = findChild(segment(bar, 1), "percent")
            compare(percent.font.pixelSize, 10)
            compare(percent.font.bold, true)
            fuzzyCompare(percent.color.r, 1, 0.001)
            fuzzyCompare(percent.color.g, 1, 0.001)
            fuzzyCompare(percent.color.b, 1, 0.001)
            fuzzyCompare(percent.color.a, 0.92, 0.005)
        }

        function test_formatCombos_data() {
            return [
                {tag: "whole", value: 12, text: "12 combos"},
                {tag: "within 1e-6 above", value: 12.0000004, text: "12 combos"},
                {tag: "within 1e-6 below", value: 6.9999995, text: "7 combos"},
                {tag: "fraction", value: 12.34, text: "12.3 combos"},
                {tag: "just outside the tolerance", value: 3.00001, text: "3.0 combos"},
                {tag: "zero", value: 0, text: "0 combos"},
                {tag: "not a number", value: NaN, text: "—"},
                {tag: "infinite", value: Infinity, text: "—"},
                {tag: "missing", value: undefined, text: "—"},
                {tag: "null", value: null, text: "—"}
            ]
        }

        function test_formatCombos(data) {
            compare(create()._formatCombos(data.value), data.text)
        }

        function test_formatEquity_data() {
            return [
                {tag: "share", value: 0.4567, text: "45.7% equity"},
                {tag: "whole", value: 1, text: "100.0% equity"},
                {tag: "zero", value: 0, text: "0.0% equity"},
                {tag: "not a number", value: NaN, text: "—"},
                {tag: "missing", value: undefined, text: "—"}
            ]
        }

        function test_formatEquity(data) {
            compare(create()._formatEquity(data.value), data.text)
        }

        function test_formatEv_data() {
            return [
                {tag: "positive", value: 1.234, text: "1.23 EV"},
                {tag: "negative", value: -0.5, text: "-0.50 EV"},
                {tag: "zero", value: 0, text: "0.00 EV"},
                {tag: "infinite", value: -Infinity, text: "—"},
                {tag: "not a number", value: NaN, text: "—"}
            ]
        }

        function test_formatEv(data) {
            compare(create()._formatEv(data.value), data.text)
        }

        function test_labelsRow() {
            const bar = create({width: 800, theme: darkTheme, actions: threeActions})
            const expected = [
                ["Check", "25%", "12 combos", "45.7% equity", "1.23 EV"],
                ["Bet 75%", "50%", "20.3 combos", "50.0% equity", "-0.50 EV"],
                ["Raise 250%", "25%", "3 combos", "61.0% equity", "0.00 EV"]
            ]
            const parts = ["name", "share", "combos", "equity", "ev"]
            for (let i = 0; i < expected.length; ++i) {
                for (let p = 0; p < parts.length; ++p)
                    compare(labelPart(bar, i, parts[p]).text, expected[i][p], parts[p] + " of label " + i)
                const swatch = labelPart(bar, i, "swatch")
                compare(swatch.width, 10)
                compare(swatch.height, 10)
                sameColor(swatch.color, shapeOf(bar, i).color, "swatch " + i)
            }
        }

        // A chance entry carries no statistics: each figure reads as a dash.
        function test_labelsWithoutStatistics() {
            const bar = create({width: 600, theme: darkTheme, actions: [{name: "Random turn card",
                actionType: "chance", frequency: 1.0, combos: NaN, equity: NaN, ev: NaN}]})
            compare(labelPart(bar, 0, "share").text, "100%")
            for (const part of ["combos", "equity", "ev"])
                compare(labelPart(bar, 0, part).text, "—")
        }

        function test_labelsHiddenWithoutShowLabels() {
            const bar = create({width: 600, showLabels: false, actions: threeActions})
            compare(findChild(bar, "label_0"), null, "no labels are built")
            verify(!findChild(bar, "labels").visible)
        }

        function test_wideLabelsScrollSideways() {
            const bar = create({width: 200, theme: darkTheme, actions: threeActions})
            const labels = findChild(bar, "labels")
            verify(labels.contentWidth > labels.width, "the labels are wider than the bar")
            verify(labels.interactive, "and can be scrolled")
            compare(bar.implicitHeight, 40, "the bar does not grow")
            bar.width = 2000
            verify(!labels.interactive, "labels that fit do not scroll")
        }

        function test_colorPrecedence_data() {
            const rows = []
            for (const theme of [darkTheme, lightTheme]) {
                const tag = theme.dark ? "dark: " : "light: "
                rows.push({tag: tag + "own colour first", theme: theme,
                           entry: {color: "#123456", actionType: "fold", name: "Check"}, expected: "#123456"})
                rows.push({tag: tag + "then the type", theme: theme,
                           entry: {actionType: "fold", name: "Check"}, expected: theme.actionFold})
                rows.push({tag: tag + "type bet beats a sized name", theme: theme,
                           entry: {actionType: "bet", name: "Bet 75%"}, expected: theme.actionBet})
                rows.push({tag: tag + "then the name", theme: theme,
                           entry: {name: "Call"}, expected: theme.actionCall})
                rows.push({tag: tag + "empty type falls to the name", theme: theme,
                           entry: {actionType: "", name: "Raise 250%"}, expected: theme.actionColor("Raise 250%")})
                rows.push({tag: tag + "empty colour falls to the type", theme: theme,
                           entry: {color: "", actionType: "allin", name: "x"}, expected: theme.actionAllIn})
                rows.push({tag: tag + "nothing known", theme: theme,
                           entry: {name: "Random turn card", actionType: "chance"}, expected: theme.textMuted})
            }
            return rows
        }

        function test_colorPrecedence(data) {
            const entry = Object.assign({frequency: 1}, data.entry)
            const bar = create({width: 300, theme: data.theme, actions: [entry]})
            sameColor(shapeOf(bar, 0).color, data.expected, "segment")
            sameColor(labelPart(bar, 0, "swatch").color, data.expected, "swatch")
        }

        function test_darkFallbackWithoutTheme() {
            const bar = create({width: 300, actions: [{name: "Fold", actionType: "fold", frequency: 1}]})
            sameColor(shapeOf(bar, 0).color, darkTheme.actionFold, "segment")
            sameColor(labelPart(bar, 0, "name").color, darkTheme.text, "name")
            compare(shapeOf(bar, 0).radius, darkTheme.radiusSm)
        }

        function test_clickEmitsWhenInteractive_data() {
            return [
                {tag: "first", x: 50, index: 0, name: "Check"},
                {tag: "second", x: 200, index: 1, name: "Bet 75%"},
                {tag: "third", x: 399, index: 2, name: "Raise 250%"}
            ]
        }

        function test_clickEmitsWhenInteractive(data) {
            const bar = create({width: 400, theme: darkTheme, actions: threeActions, interactive: true})
            clickSpy.target = bar
            mouseClick(findChild(bar, "bar"), data.x, 12)
            compare(clickSpy.count, 1)
            compare(clickSpy.signalArguments[0][0], data.index)
            compare(clickSpy.signalArguments[0][1], data.name)
        }

        function test_clickIgnoredWhenNotInteractive() {
            const bar = create({width: 400, theme: darkTheme, actions: threeActions})
            clickSpy.target = bar
            hoverSpy.target = bar
            mouseMove(findChild(bar, "bar"), 200, 12)
            mouseClick(findChild(bar, "bar"), 200, 12)
            compare(clickSpy.count, 0)
            compare(hoverSpy.count, 0)
        }

        function test_hoverEmitsIndexNameAndShare() {
            const bar = create({width: 400, theme: darkTheme, actions: threeActions, interactive: true})
            hoverSpy.target = bar
            const area = findChild(bar, "bar")
            mouseMove(area, 200, 12)
            tryCompare(hoverSpy, "count", 1)
            compare(hoverSpy.signalArguments[0][0], 1)
            compare(hoverSpy.signalArguments[0][1], "Bet 75%")
            fuzzyCompare(hoverSpy.signalArguments[0][2], 0.5, 1e-9)
            mouseMove(area, 210, 12)
            compare(hoverSpy.count, 1, "moving within a segment reports it once")
            mouseMove(area, 350, 12)
            tryCompare(hoverSpy, "count", 2)
            compare(hoverSpy.signalArguments[1][0], 2)
            verify(!Qt.colorEqual(shapeOf(bar, 2).color, darkTheme.actionColor("raise")), "the hovered segment lights up")
        }

        function test_segmentAt() {
            const bar = create({width: 400, actions: threeActions})
            compare(bar._segmentAt(0), 0)
            compare(bar._segmentAt(99.5), 0)
            compare(bar._segmentAt(100), 1)
            compare(bar._segmentAt(399), 2)
            compare(bar._segmentAt(400), -1)
            compare(bar._segmentAt(-1), -1)
        }

        function test_selectedActionDimsTheOthers() {
            const bar = create({width: 400, theme: darkTheme, actions: threeActions})
            for (let i = 0; i < 3; ++i)
                compare(segment(bar, i).opacity, 1, "nothing selected")
            bar.selectedAction = 1
            compare(segment(bar, 0).opacity, bar._dimmedOpacity)
            compare(segment(bar, 1).opacity, 1)
            compare(segment(bar, 2).opacity, bar._dimmedOpacity)
        }

        function test_actionsReplaced() {
            const bar = create({width: 400, theme: darkTheme, actions: threeActions})
            bar.actions = actionsWith([1, 3])
            compare(findChild(bar, "segment_2"), null, "the old third segment is gone")
            compare(segment(bar, 1).width, 300)
            compare(labelPart(bar, 1, "share").text, "75%")
        }
    }
}
