import QtQuick
import QtQuick.Layouts
import QtTest
import Kelvane

// TestCase itself is invisible, so the components under test are placed in this visible item.
Item {
    id: root

    width: 640
    height: 640

    TestCase {
        id: testCase

        name: "Components"
        when: windowShown

        Theme { id: darkTheme }
        Theme { id: lightTheme; dark: false }

        Component { id: cardComponent; Card {} }
        Component { id: sectionHeaderComponent; SectionHeader {} }
        Component { id: primaryButtonComponent; PrimaryButton {} }
        Component { id: secondaryButtonComponent; SecondaryButton {} }
        Component { id: toggleSwitchComponent; ToggleSwitch {} }
        Component { id: chipComponent; Chip {} }
        Component { id: statCardComponent; StatCard {} }
        Component { id: progressRingComponent; ProgressRing {} }
        Component { id: iconComponent; Icon {} }
        Component { id: playingCardComponent; PlayingCard {} }
        Component { id: boardDisplayComponent; BoardDisplay {} }
        Component { id: cardPickerComponent; CardPicker {} }
        Component { id: sidebarComponent; Sidebar {} }

        Component {
            id: cardWithColumnComponent

            Card {
                property alias firstBlock: first
                property alias column: column

                ColumnLayout {
                    id: column
                    anchors.fill: parent
                    spacing: 10

                    Rectangle { id: first; implicitWidth: 100; implicitHeight: 40 }
                    Rectangle { implicitWidth: 60; implicitHeight: 30 }
                }
            }
        }

        Component {
            id: cardWithTwoChildrenComponent

            Card {
                Rectangle { implicitWidth: 120; implicitHeight: 20 }
                Rectangle { implicitWidth: 50; implicitHeight: 70 }
            }
        }

        SignalSpy { id: spy }
        SignalSpy { id: secondSpy }

        // Hover state must not leak from one test into the next.
        function init() {
            mouseMove(root, root.width - 1, root.height - 1)
        }

        function cleanup() {
            for (const each of [spy, secondSpy]) {
                each.clear()
                each.target = null
                each.signalName = ""
            }
        }

        function create(component, properties) {
            const item = createTemporaryObject(component, root, properties || {})
            verify(item !== null, "component could not be created")
            return item
        }

        function sameColor(actual, expected, what) {
            verify(Qt.colorEqual(actual, expected), what + ": got " + actual + ", expected " + expected)
        }

        function centreXIn(item, ancestor) {
            return item.mapToItem(ancestor, item.width / 2, 0).x
        }

        function test_instantiation_data() {
            // A header with no words has nothing to measure, so it gets a title.
            const components = [
                ["Card", cardComponent, {}], ["SectionHeader", sectionHeaderComponent, { title: "Solve" }],
                ["PrimaryButton", primaryButtonComponent, {}], ["SecondaryButton", secondaryButtonComponent, {}],
                ["ToggleSwitch", toggleSwitchComponent, {}], ["Chip", chipComponent, {}],
                ["StatCard", statCardComponent, {}], ["ProgressRing", progressRingComponent, {}],
                ["Icon", iconComponent, {}], ["PlayingCard", playingCardComponent, {}],
                ["BoardDisplay", boardDisplayComponent, {}], ["CardPicker", cardPickerComponent, {}],
                ["Sidebar", sidebarComponent, {}]
            ]
            const rows = []
            for (const [name, component, properties] of components) {
                for (const [variant, theme] of [["without theme", null], ["dark", darkTheme], ["light", lightTheme]])
                    rows.push({ tag: name + " " + variant, component: component, properties: properties, theme: theme })
            }
            return rows
        }

        function test_instantiation(data) {
            failOnWarning(/.*/)
            const properties = Object.assign({ theme: data.theme }, data.properties)
            const item = create(data.component, properties)
            verify(item.implicitWidth > 0, "implicit width")
            verify(item.implicitHeight > 0, "implicit height")
            compare(item.theme, data.theme)
            wait(50)
        }

        function test_card_defaults() {
            const card = create(cardComponent)
            compare(card.hoverable, false)
            compare(card.elevated, false)
            sameColor(card.accentColor, "transparent", "accentColor")
            compare(card.padding, 16)
            compare(card.background.children[0].radius, 12)
        }

        function test_card_takes_its_height_from_a_single_column_layout() {
            const card = create(cardWithColumnComponent, { theme: darkTheme })
            compare(card.column.implicitHeight, 80)
            compare(card.implicitHeight, 80 + 2 * darkTheme.spaceLg)
            compare(card.implicitWidth, 100 + 2 * darkTheme.spaceLg)
            compare(card.height, card.implicitHeight)
            card.firstBlock.implicitHeight = 90
            tryCompare(card, "implicitHeight", 130 + 2 * darkTheme.spaceLg)
        }

        function test_card_takes_the_largest_of_several_children() {
            const card = create(cardWithTwoChildrenComponent)
            compare(card.implicitWidth, 120 + 32)
            compare(card.implicitHeight, 70 + 32)
        }

        function test_card_border_follows_accent() {
            const card = create(cardComponent, { theme: darkTheme })
            const fill = card.background.children[0]
            sameColor(fill.border.color, darkTheme.stroke, "plain border")
            card.accentColor = darkTheme.gold
            sameColor(fill.border.color, darkTheme.gold, "accent border")
        }

        function test_card_hover_lifts_only_when_hoverable() {
            const card = create(cardWithColumnComponent, { hoverable: true })
            mouseMove(card, card.width / 2, card.height / 2)
            tryCompare(card, "scale", 1.01)
            mouseMove(root, root.width - 1, root.height - 1)
            tryCompare(card, "scale", 1.0)
            card.hoverable = false
            mouseMove(card, card.width / 2, card.height / 2)
            wait(200)
            compare(card.scale, 1.0)
        }

        function test_section_header() {
            const header = create(sectionHeaderComponent, { theme: lightTheme, title: "Solve" })
            sameColor(header.badgeColor, lightTheme.accent, "badgeColor default")
            const title = findChild(header, "title")
            compare(title.font.pixelSize, 20)
            compare(title.font.bold, true)
            compare(findChild(header, "badge").visible, false)
            compare(findChild(header, "subtitle").visible, false)
            header.badge = "Ready"
            header.subtitle = "Run the solver."
            const badge = findChild(header, "badge")
            compare(badge.visible, true)
            compare(badge.height, 22)
            const subtitle = findChild(header, "subtitle")
            compare(subtitle.visible, true)
            compare(subtitle.font.pixelSize, 13)
            sameColor(subtitle.color, lightTheme.textMuted, "subtitle colour")
            verify(Math.abs(subtitle.lineHeight - 1.4) < 1e-9)
        }

        function test_primary_button_defaults() {
            const button = create(primaryButtonComponent)
            compare(button.loading, false)
            compare(button.iconText, "")
            compare(button.iconName, "")
            compare(button.implicitHeight, 40)
            compare(button.background.radius, 8)
        }

        function test_button_without_icon_has_its_label_exactly_centred_data() {
            return [
                { tag: "primary", component: primaryButtonComponent },
                { tag: "secondary", component: secondaryButtonComponent }
            ]
        }

        function test_button_without_icon_has_its_label_exactly_centred(data) {
            const button = create(data.component, { text: "Start Solve", width: 241 })
            const label = findChild(button, "label")
            compare(findChild(button, "icon").visible, false)
            compare(centreXIn(label, button), button.width / 2)
            button.iconName = "bolt"
            tryVerify(() => centreXIn(label, button) > button.width / 2, 1000, "a shown icon pushes the label right")
        }

        function test_primary_button_icon_name_wins_and_loading_hides_it() {
            const button = create(primaryButtonComponent, { text: "Go", iconName: "bolt", iconText: "▶" })
            compare(findChild(button, "icon").visible, true)
            compare(findChild(button, "iconText").visible, false)
            button.iconName = ""
            compare(findChild(button, "iconText").visible, true)
            button.loading = true
            compare(findChild(button, "spinner").visible, true)
            compare(findChild(button, "spinner").width, 14)
            compare(findChild(button, "iconText").visible, false)
        }

        function test_primary_button_colours() {
            const button = create(primaryButtonComponent, { theme: darkTheme, text: "Go" })
            const label = findChild(button, "label")
            sameColor(label.color, "white", "enabled label")
            compare(label.font.pixelSize, 14)
            compare(label.font.weight, Font.DemiBold)
            sameColor(button._topColor(), darkTheme.accent, "top stop")
            sameColor(button._bottomColor(), darkTheme.accentMuted, "bottom stop")
            button.enabled = false
            sameColor(label.color, darkTheme.text, "disabled label")
            sameColor(button._topColor(), darkTheme.surface3, "disabled top stop")
            sameColor(button._bottomColor(), darkTheme.surface2, "disabled bottom stop")
        }

        function test_primary_button_hover_scale() {
            const button = create(primaryButtonComponent, { text: "Go" })
            mouseMove(button, button.width / 2, button.height / 2)
            tryCompare(button, "scale", 1.02)
        }

        function test_secondary_button() {
            const button = create(secondaryButtonComponent, { theme: darkTheme, text: "Clear" })
            compare(button.danger, false)
            compare(button.implicitHeight, 40)
            sameColor(button.background.color, darkTheme.surface, "fill")
            sameColor(button.background.border.color, darkTheme.stroke, "border")
            sameColor(findChild(button, "label").color, darkTheme.text, "label")
            button.danger = true
            sameColor(button.background.border.color, darkTheme.danger, "danger border")
            sameColor(findChild(button, "label").color, darkTheme.danger, "danger label")
            button.enabled = false
            compare(button.opacity, 0.5)
        }

        function test_secondary_button_click() {
            const button = create(secondaryButtonComponent, { text: "Clear" })
            spy.target = button
            spy.signalName = "clicked"
            mouseClick(button)
            compare(spy.count, 1)
        }

        function test_toggle_switch() {
            const toggle = create(toggleSwitchComponent, { theme: darkTheme })
            compare(toggle.implicitWidth, 44)
            compare(toggle.implicitHeight, 24)
            const track = findChild(toggle, "track")
            const thumb = findChild(toggle, "thumb")
            compare(track.height, 18)
            compare(thumb.width, 14)
            compare(thumb.x, 3)
            sameColor(track.color, darkTheme.surface3, "off track")
            spy.target = toggle
            spy.signalName = "toggled"
            mouseClick(toggle)
            compare(spy.count, 1)
            compare(toggle.checked, true)
            sameColor(track.color, darkTheme.accent, "on track")
            sameColor(track.border.color, darkTheme.accentMuted, "on border")
            tryCompare(thumb, "x", track.width - 14 - 3)
            const ring = findChild(toggle, "focusRing")
            compare(ring.width, track.width + 6)
            compare(ring.height, track.height + 6)
        }

        function test_chip_defaults() {
            const chip = create(chipComponent, { theme: lightTheme, text: "Flop" })
            sameColor(chip.tint, lightTheme.surface2, "tint")
            sameColor(chip.stroke, lightTheme.stroke, "stroke")
            sameColor(chip.textColor, lightTheme.text, "textColor")
            compare(chip.removable, false)
            compare(chip.clickable, false)
            compare(chip.height, 28)
            compare(chip.radius, 14)
            const label = findChild(chip, "label")
            compare(label.font.pixelSize, 12)
            compare(chip.width, label.implicitWidth + 16)
        }

        function test_chip_click_only_when_clickable() {
            const chip = create(chipComponent, { text: "Turn" })
            spy.target = chip
            spy.signalName = "clicked"
            mouseClick(chip)
            compare(spy.count, 0)
            chip.clickable = true
            mouseClick(chip)
            compare(spy.count, 1)
        }

        function test_chip_click_off_when_removable() {
            const chip = create(chipComponent, { text: "Board", clickable: true, removable: true })
            spy.target = chip
            spy.signalName = "clicked"
            const label = findChild(chip, "label")
            mouseClick(label)
            compare(spy.count, 0)
            const remove = findChild(chip, "remove")
            compare(remove.visible, true)
            compare(remove.text, "×")
            compare(remove.font.pixelSize, 16)
            secondSpy.target = chip
            secondSpy.signalName = "removeClicked"
            mouseClick(remove)
            compare(secondSpy.count, 1)
            compare(spy.count, 0)
        }

        function test_stat_card_sizes_data() {
            return [
                { tag: "regular", compact: false, w: 160, h: 80, labelSize: 11, valueSize: 24, unitSize: 14, dot: true },
                { tag: "compact", compact: true, w: 120, h: 64, labelSize: 10, valueSize: 18, unitSize: 12, dot: false }
            ]
        }

        function test_stat_card_sizes(data) {
            const card = create(statCardComponent, { compact: data.compact, label: "Speed", value: "12.5", unit: "it/s" })
            compare(card.implicitWidth, data.w)
            compare(card.implicitHeight, data.h)
            compare(card.radius, 12)
            compare(findChild(card, "label").text, "SPEED")
            compare(findChild(card, "label").font.pixelSize, data.labelSize)
            compare(findChild(card, "value").font.pixelSize, data.valueSize)
            compare(findChild(card, "unit").font.pixelSize, data.unitSize)
            compare(findChild(card, "dot").visible, data.dot)
            if (data.dot)
                compare(findChild(card, "dot").width, 6)
        }

        function test_stat_card_trend() {
            const card = create(statCardComponent, { theme: darkTheme, value: "3" })
            compare(card.trend, "")
            sameColor(card.accentColor, darkTheme.accent, "accentColor default")
            compare(findChild(card, "trend").visible, false)
            card.trend = "up"
            compare(findChild(card, "trend").text, "↑")
            sameColor(findChild(card, "trend").color, darkTheme.success, "up colour")
            card.trend = "down"
            compare(findChild(card, "trend").text, "↓")
            sameColor(findChild(card, "trend").color, darkTheme.danger, "down colour")
        }

        function test_progress_ring_defaults() {
            const ring = create(progressRingComponent, { theme: darkTheme })
            compare(ring.value, 0)
            compare(ring.strokeWidth, 8)
            sameColor(ring.trackColor, darkTheme.surface3, "trackColor")
            sameColor(ring.progressColor, darkTheme.accent, "progressColor")
            compare(ring.showPercentage, true)
            compare(ring.indeterminate, false)
            compare(ring.implicitWidth, 100)
            compare(ring.implicitHeight, 100)
        }

        function test_progress_ring_animates_to_the_value() {
            const ring = create(progressRingComponent)
            ring.value = 0.5
            verify(ring._animatedValue < 0.5, "the value moves over time")
            tryCompare(ring, "_animatedValue", 0.5, 1000)
            const centre = findChild(ring, "centre")
            compare(centre.text, "50%")
            compare(centre.font.pixelSize, 22)
            ring.value = 7
            tryCompare(ring, "_animatedValue", 1, 1000)
            compare(centre.text, "100%")
            ring.showPercentage = false
            compare(centre.visible, false)
        }

        function test_progress_ring_indeterminate_counts_as_zero() {
            const ring = create(progressRingComponent, { value: 0.8, width: 200, height: 200 })
            tryCompare(ring, "_animatedValue", 0.8, 1000)
            ring.indeterminate = true
            compare(ring._effectiveValue, 0)
            tryCompare(ring, "_animatedValue", 0, 1000)
            const centre = findChild(ring, "centre")
            compare(centre.text, "...")
            compare(centre.font.pixelSize, 36)
            const turning = findChild(ring, "turning")
            compare(turning.running, true)
            compare(turning.duration, 1500)
            wait(300)
            ring.indeterminate = false
            compare(turning.running, false)
            tryCompare(findChild(ring, "arc"), "rotation", 0)
        }

        function test_sidebar() {
            const sidebar = create(sidebarComponent, { theme: darkTheme })
            compare(sidebar.width, 240)
            compare(sidebar.currentIndex, 0)
            const titles = ["Home", "Setup", "Solve", "Results", "Settings"]
            const subtitles = ["Overview & quick actions", "Board, ranges, tree", "Run solver", "Browse strategies",
                               "Preferences"]
            for (let i = 0; i < titles.length; ++i) {
                const row = findChild(sidebar, "navRow" + i)
                compare(row.height, 52)
                compare(findChild(row, "title").text, titles[i])
                compare(findChild(row, "subtitle").text, subtitles[i])
                compare(findChild(row, "subtitle").visible, i === 0)
            }
            sidebar.currentIndex = 2
            compare(findChild(findChild(sidebar, "navRow2"), "subtitle").visible, true)
            compare(findChild(findChild(sidebar, "navRow0"), "subtitle").visible, false)
            spy.target = sidebar
            spy.signalName = "navigate"
            mouseClick(findChild(sidebar, "navRow3"))
            compare(spy.count, 1)
            compare(spy.signalArguments[0][0], 3)
        }

        function test_sidebar_texts() {
            const sidebar = create(sidebarComponent)
            const texts = []
            const collect = item => {
                if (item.text !== undefined && typeof item.text === "string")
                    texts.push(item.text)
                for (let i = 0; i < item.children.length; ++i)
                    collect(item.children[i])
            }
            collect(sidebar)
            for (const expected of ["♠", "Orvanthis", "Poker Solver", "v0.1.0 dev"])
                verify(texts.indexOf(expected) >= 0, "missing text " + expected)
        }
    }
}
