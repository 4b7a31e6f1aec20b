import QtQuick
import QtTest
import Kelvane

// TestCase itself is invisible, so the nodes under test are placed in this visible item.
Item {
    id: root

    width: 600
    height: 300

    TestCase {
        id: testCase

        name: "TreeNode"
        when: windowShown

        Theme { id: darkTheme }
        Theme { id: lightTheme; dark: false }

        Component { id: nodeComponent; TreeNode { x: 50; y: 50 } }

        SignalSpy { id: clickSpy; signalName: "clicked" }
        SignalSpy { id: toggleSpy; signalName: "toggleExpand" }

        readonly property color inkOnLight: "#0B0F14"
        readonly property color mutedInkOnLight: "#2D333B"

        function init() {
            mouseMove(root, root.width - 1, root.height - 1)
        }

        function cleanup() {
            for (const spy of [clickSpy, toggleSpy]) {
                spy.clear()
                spy.target = null
            }
        }

        function create(properties) {
            const node = createTemporaryObject(nodeComponent, root, properties || {})
            verify(node !== null, "node could not be created")
            return node
        }

        function part(node, name) {
            const found = findChild(node, name)
            verify(found !== null, "no " + name)
            return found
        }

        function sameColor(actual, expected, what) {
            verify(Qt.colorEqual(actual, expected), what + ": got " + actual + ", expected " + expected)
        }

        // Channel by channel, with room for the rounding of stored colours.
        function closeColor(actual, expected, what) {
            const a = Qt.color(actual)
            const e = Qt.color(expected)
            for (const channel of ["r", "g", "b", "a"])
                verify(Math.abs(a[channel] - e[channel]) < 0.004, what + ": got " + actual + ", expected " + expected)
        }

        function mixed(base, tint, amount) {
            const b = Qt.color(base)
            const t = Qt.color(tint)
            return Qt.rgba(b.r * (1 - amount) + t.r * amount, b.g * (1 - amount) + t.g * amount,
                           b.b * (1 - amount) + t.b * amount, 1)
        }

        function bothThemes(rows) {
            const all = []
            for (const theme of [darkTheme, lightTheme]) {
                for (const row of rows)
                    all.push(Object.assign({}, row, {tag: (theme.dark ? "dark: " : "light: ") + row.tag,
                                                     theme: theme}))
            }
            return all
        }

        function test_defaults() {
            const node = create()
            compare(node.nodeType, "decision")
            compare(node.frequency, -1)
            compare(node.selected, false)
            compare(node.expanded, false)
            compare(node.hasChildren, false)
            compare(node.depth, 0)
            compare(node.implicitWidth, 200)
            compare(node.implicitHeight, 48)
            compare(node.width, 200)
            compare(node.height, 48)
        }

        function test_fill_data() {
            return bothThemes([
                {tag: "terminal", props: {nodeType: "terminal", action: "Call", actionType: "call"},
                 expected: t => t.surface3},
                {tag: "chance", props: {nodeType: "chance", action: "Ks"},
                 expected: t => mixed(t.surface2, t.gold, 0.22)},
                {tag: "decision check", props: {action: "Check", actionType: "check"},
                 expected: t => mixed(t.surface2, t.actionCheck, 0.28)},
                {tag: "decision plain bet", props: {action: "Bet", actionType: "bet"},
                 expected: t => mixed(t.surface2, t.actionBet, 0.28)},
                {tag: "decision sized bet", props: {action: "Bet 75%", actionType: "bet"},
                 expected: t => mixed(t.surface2, t.actionColor("Bet 75%"), 0.28)},
                {tag: "decision sized raise", props: {action: "Raise 250%", actionType: "raise"},
                 expected: t => mixed(t.surface2, t.actionColor("Raise 250%"), 0.28)},
                {tag: "decision fold", props: {action: "Fold", actionType: "fold"},
                 expected: t => mixed(t.surface2, t.actionFold, 0.28)},
                {tag: "unsized name goes by type", props: {action: "All-in", actionType: "allin"},
                 expected: t => mixed(t.surface2, t.actionAllIn, 0.28)}
            ])
        }

        function test_fill(data) {
            const node = create(Object.assign({theme: data.theme}, data.props))
            closeColor(node.color, data.expected(data.theme), "fill")
        }

        function test_sizedActionsShadeByName() {
            const node = create({theme: darkTheme, action: "Bet 33%", actionType: "bet"})
            const small = Qt.color(node.color)
            node.action = "Bet 150%"
            verify(!Qt.colorEqual(node.color, small), "two bet sizes give two fills")
            sameColor(part(node, "actionChip").color, darkTheme.actionColor("Bet 150%"), "chip")
        }

        function test_brightness_data() {
            return [
                {tag: "white", color: "#FFFFFF", brightness: 1},
                {tag: "black", color: "#000000", brightness: 0},
                {tag: "pure green", color: "#00FF00", brightness: 0.7152},
                {tag: "pure red", color: "#FF0000", brightness: 0.2126},
                {tag: "pure blue", color: "#0000FF", brightness: 0.0722}
            ]
        }

        function test_brightness(data) {
            fuzzyCompare(create()._brightness(data.color), data.brightness, 1e-4)
        }

        function test_lightThreshold_data() {
            return [
                {tag: "at 0.62", grey: 0.6205, light: true},
                {tag: "below 0.62", grey: 0.615, light: false},
                {tag: "white", grey: 1, light: true},
                {tag: "dark", grey: 0.1, light: false}
            ]
        }

        function test_lightThreshold(data) {
            const node = create({theme: darkTheme})
            const fill = Qt.rgba(data.grey, data.grey, data.grey, 1)
            compare(node._isLight(fill), data.light)
            sameColor(node._textOn(fill), data.light ? inkOnLight : darkTheme.text, "text")
            sameColor(node._mutedTextOn(fill), data.light ? mutedInkOnLight : darkTheme.textMuted, "muted text")
        }

        // The dark theme's fills are dark, the light theme's are light: the text follows the fill.
        function test_textColorFollowsFill_data() {
            return [
                {tag: "dark decision", theme: darkTheme, props: {action: "Check", actionType: "check", pot: 10},
                 text: t => t.text, muted: t => t.textMuted},
                {tag: "dark terminal", theme: darkTheme, props: {nodeType: "terminal", pot: 10},
                 text: t => t.text, muted: t => t.textMuted},
                {tag: "light decision", theme: lightTheme, props: {action: "Call", actionType: "call", pot: 10},
                 text: () => inkOnLight, muted: () => mutedInkOnLight},
                {tag: "light chance", theme: lightTheme, props: {nodeType: "chance", pot: 10},
                 text: () => inkOnLight, muted: () => mutedInkOnLight}
            ]
        }

        function test_textColorFollowsFill(data) {
            const node = create(Object.assign({theme: data.theme, frequency: 0.5}, data.props))
            sameColor(part(node, "label").color, data.text(data.theme), "label")
            sameColor(part(node, "potText").color, data.muted(data.theme), "pot")
            sameColor(part(node, "frequencyText").color, data.muted(data.theme), "frequency")
        }

        function test_label_data() {
            return [
                {tag: "decision", props: {nodeType: "decision", player: "OOP"}, label: "OOP"},
                {tag: "decision in position", props: {nodeType: "decision", player: "IP"}, label: "IP"},
                {tag: "chance with a text", props: {nodeType: "chance", player: "Deal Turn"}, label: "Deal Turn"},
                {tag: "chance without", props: {nodeType: "chance", player: ""}, label: "Deal"},
                {tag: "terminal", props: {nodeType: "terminal", player: "IP"}, label: "Terminal"}
            ]
        }

        function test_label(data) {
            compare(part(create(data.props), "label").text, data.label)
        }

        function test_border() {
            const node = create({theme: lightTheme, action: "Check", actionType: "check"})
            sameColor(node.border.color, lightTheme.stroke, "plain")
            mouseMove(node, 100, 24)
            tryVerify(() => Qt.colorEqual(node.border.color, lightTheme.strokeFocus), 1000, "hovered")
            node.selected = true
            sameColor(node.border.color, lightTheme.accent, "selected wins over hover")
            mouseMove(root, root.width - 1, root.height - 1)
            tryVerify(() => !node._hovered, 1000, "left")
            sameColor(node.border.color, lightTheme.accent, "selected")
        }

        function test_hoverScale() {
            const node = create({theme: darkTheme})
            compare(node.scale, 1)
            mouseMove(node, 100, 24)
            tryCompare(node, "scale", 1.02)
            mouseMove(root, root.width - 1, root.height - 1)
            tryCompare(node, "scale", 1)
        }

        function test_depthDoesNotIndent() {
            const flat = create({theme: darkTheme, player: "OOP", action: "Check", actionType: "check"})
            const deep = create({theme: darkTheme, player: "OOP", action: "Check", actionType: "check", depth: 4})
            compare(part(deep, "label").mapToItem(deep, 0, 0).x, part(flat, "label").mapToItem(flat, 0, 0).x)
            compare(part(deep, "actionChip").x, part(flat, "actionChip").x)
        }

        function test_actionChip_data() {
            return bothThemes([
                {tag: "check", action: "Check", actionType: "check", color: t => t.actionCheck},
                {tag: "sized raise", action: "Raise 250%", actionType: "raise", color: t => t.actionColor("Raise 250%")},
                {tag: "sized bet", action: "Bet 75%", actionType: "bet", color: t => t.actionColor("Bet 75%")}
            ])
        }

        function test_actionChip(data) {
            const node = create({theme: data.theme, action: data.action, actionType: data.actionType})
            const chip = part(node, "actionChip")
            verify(chip.visible)
            compare(chip.text, data.action)
            sameColor(chip.color, data.color(data.theme), "chip fill")
            const expectedText = node._isLight(chip.color) ? inkOnLight : node._lightInk()
            sameColor(chip.textColor, expectedText, "chip text")
        }

        function test_actionChipHiddenWithoutAction() {
            verify(!part(create({nodeType: "chance"}), "actionChip").visible)
        }

        function test_potText_data() {
            return [
                {tag: "zero hides", pot: 0, text: "", shown: false},
                {tag: "negative hides", pot: -5, text: "", shown: false},
                {tag: "whole", pot: 180, text: "Pot: 180", shown: true},
                {tag: "one decimal", pot: 12.5, text: "Pot: 12.5", shown: true},
                {tag: "two decimals at most", pot: 3.14159, text: "Pot: 3.14", shown: true}
            ]
        }

        function test_potText(data) {
            const text = part(create({pot: data.pot}), "potText")
            compare(text.visible, data.shown)
            compare(text.text, data.text)
        }

        function test_frequencyText_data() {
            return [
                {tag: "negative hides", frequency: -1, text: "", shown: false},
                {tag: "not a number hides", frequency: NaN, text: "", shown: false},
                {tag: "zero shows", frequency: 0, text: "Freq: 0%", shown: true},
                {tag: "rounded", frequency: 0.456, text: "Freq: 46%", shown: true},
                {tag: "all", frequency: 1, text: "Freq: 100%", shown: true}
            ]
        }

        function test_frequencyText(data) {
            const text = part(create({frequency: data.frequency}), "frequencyText")
            compare(text.visible, data.shown)
            compare(text.text, data.text)
        }

        function test_evText_data() {
            return bothThemes([
                {tag: "zero hides", ev: 0, text: "", shown: false},
                {tag: "not a number hides", ev: NaN, text: "", shown: false},
                {tag: "positive", ev: 1.5, text: "EV: +1.5", shown: true, color: t => t.success},
                {tag: "positive two decimals", ev: 12.345, text: "EV: +12.35", shown: true, color: t => t.success},
                {tag: "negative", ev: -2.25, text: "EV: -2.25", shown: true, color: t => t.danger}
            ])
        }

        function test_evText(data) {
            const text = part(create({theme: data.theme, ev: data.ev}), "evText")
            compare(text.visible, data.shown)
            compare(text.text, data.text)
            if (data.shown)
                sameColor(text.color, data.color(data.theme), "EV colour")
        }

        function test_metaTextsInOrder() {
            const node = create({theme: darkTheme, pot: 24, frequency: 0.25, ev: -1})
            const pot = part(node, "potText")
            const frequency = part(node, "frequencyText")
            const ev = part(node, "evText")
            tryVerify(() => pot.x < frequency.x && frequency.x < ev.x, 1000, "pot, then frequency, then EV")
            compare(ev.width, ev.implicitWidth, "room enough: the EV is not elided")
        }

        function test_evElidedWhenShortOfRoom() {
            const node = create({theme: darkTheme, width: 190, player: "OOP", pot: 1012.5, frequency: 0.25,
                                 ev: -123.45})
            const ev = part(node, "evText")
            const frequency = part(node, "frequencyText")
            tryVerify(() => frequency.x > 0 && ev.x > frequency.x, 1000, "laid out")
            verify(ev.width < ev.implicitWidth, "the EV gives way")
            compare(frequency.width, frequency.implicitWidth, "the frequency keeps its width")
            verify(ev.mapToItem(node, ev.width, 0).x <= part(node, "dot").mapToItem(node, 0, 0).x,
                   "the EV stays clear of the dot")
        }

        function test_toggleOrDot_data() {
            return bothThemes([
                {tag: "decision with children", props: {hasChildren: true, player: "OOP"}, button: true},
                {tag: "decision leaf OOP", props: {player: "OOP"}, button: false, dot: t => t.actionBet},
                {tag: "decision leaf IP", props: {player: "IP"}, button: false, dot: t => t.info},
                {tag: "chance", props: {nodeType: "chance", hasChildren: true}, button: false, dot: t => t.gold},
                {tag: "terminal", props: {nodeType: "terminal", hasChildren: true}, button: false,
                 dot: t => t.textFaint}
            ])
        }

        function test_toggleOrDot(data) {
            const node = create(Object.assign({theme: data.theme}, data.props))
            const button = part(node, "toggleButton")
            const dot = part(node, "dot")
            compare(button.visible, data.button)
            compare(dot.visible, !data.button)
            if (data.button) {
                compare(button.width, 20)
                compare(button.height, 20)
            } else {
                compare(dot.width, 8)
                compare(dot.height, 8)
                sameColor(dot.color, data.dot(data.theme), "dot")
            }
        }

        function test_toggleText() {
            const node = create({theme: darkTheme, hasChildren: true})
            compare(part(node, "toggleText").text, "+")
            node.expanded = true
            compare(part(node, "toggleText").text, "−")
        }

        function test_toggleEmitsToggleExpandOnly() {
            const node = create({theme: darkTheme, hasChildren: true, player: "OOP", action: "Check",
                                 actionType: "check"})
            clickSpy.target = node
            toggleSpy.target = node
            mouseClick(part(node, "toggleButton"))
            compare(toggleSpy.count, 1)
            compare(clickSpy.count, 0, "the button does not select the node")
            mouseClick(part(node, "label"))
            compare(clickSpy.count, 1)
            compare(toggleSpy.count, 1)
        }

        function test_clickOnNode() {
            const node = create({theme: lightTheme, nodeType: "terminal"})
            clickSpy.target = node
            mouseClick(node, 20, 24)
            compare(clickSpy.count, 1)
        }

        function test_hoverOnButtonKeepsNodeHovered() {
            const node = create({theme: darkTheme, hasChildren: true})
            const button = part(node, "toggleButton")
            mouseMove(button, 10, 10)
            tryCompare(node, "scale", 1.02)
            sameColor(button.border.color, darkTheme.strokeFocus, "button border")
        }

        function test_darkFallbackWithoutTheme() {
            const node = create({nodeType: "terminal", player: "OOP"})
            sameColor(node.color, darkTheme.surface3, "fill")
            sameColor(part(node, "label").color, darkTheme.text, "label")
            sameColor(part(node, "dot").color, darkTheme.textFaint, "dot")
            compare(node.radius, darkTheme.radiusSm)
        }
    }
}
