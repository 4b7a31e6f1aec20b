import QtQuick
import QtQuick.Controls
import QtTest
import Kelvane

// TestCase itself is invisible, so the shells and pages under test are placed in this visible item.
Item {
    id: root

    width: 1600
    height: 1000

    TestCase {
        id: testCase

        name: "ProjectPage"
        when: windowShown

        Component {
            id: standInComponent

            StandInController {}
        }

        Component {
            id: shellComponent

            AppShell {
                width: root.width
                height: root.height
            }
        }

        // A page without a shell, with only the memory figures of a controller.
        Component {
            id: pageComponent

            ProjectPage {
                width: root.width
                height: root.height
            }
        }

        Component {
            id: memoryControllerComponent

            QtObject {
                property string solveRequiredMemoryText: "1.2 GB"
                property string systemAvailableMemoryText: "8.0 GB"
                property real solveRequiredMemoryBytes: 1200
                property real systemAvailableMemoryBytes: 8000
            }
        }

        SignalSpy { id: goToSolveSpy; signalName: "goToSolve" }

        function cleanup() {
            goToSolveSpy.clear()
            goToSolveSpy.target = null
        }

        function makeShell() {
            const controller = createTemporaryObject(standInComponent, root, {})
            const shell = createTemporaryObject(shellComponent, root, {controller: controller})
            verify(shell !== null)
            return shell
        }

        // The Setup page of a new project, showing.
        function setupOfNewProject() {
            const shell = makeShell()
            shell.resetToNewProject()
            shell.navIndex = 1
            const page = part(shell, "projectPage")
            waitForRendering(page)
            return {shell: shell, page: page}
        }

        function makePage(properties) {
            const page = createTemporaryObject(pageComponent, root, properties || {})
            verify(page !== null)
            waitForRendering(page)
            return page
        }

        function part(parent, name) {
            const found = findChild(parent, name)
            verify(found !== null, "no " + name)
            return found
        }

        function sameColor(actual, expected, what) {
            verify(Qt.colorEqual(actual, expected), what + ": got " + actual + ", expected " + expected)
        }

        function clickSlot(page, index) {
            const slot = part(part(page, "boardDisplay"), "slot" + index)
            mouseClick(slot)
        }

        function picker(page) {
            return part(page, "cardPickerDialog")
        }

        function pick(page, card) {
            const dialog = picker(page)
            tryVerify(() => dialog.opened, 2000, "the picker is open")
            mouseClick(part(dialog.contentItem, "tile_" + card))
        }

        function clearPickedSlot(page) {
            const dialog = picker(page)
            tryVerify(() => dialog.opened, 2000, "the picker is open")
            mouseClick(part(dialog.footer, "clearCardButton"))
        }

        // Types into a field as a user would: click, select all, type, then Return.
        function typeInto(field, text) {
            mouseClick(field)
            verify(field.activeFocus, (field.objectName || "field") + " has focus")
            field.selectAll()
            keyClick(Qt.Key_Delete)
            for (const ch of text)
                keyClick(ch)
            keyClick(Qt.Key_Return)
        }

        // ---- Board

        function test_fourthSlotOnAnEmptyBoardGivesPlaceholders() {
            const s = setupOfNewProject()
            clickSlot(s.page, 3)
            compare(s.page.editingCardIndex, 3)
            compare(part(picker(s.page).contentItem, "pickerSubHeading").text, "Turn card")
            pick(s.page, "Ah")
            compare(s.page.boardText, "______Ah")
            compare(s.shell.boardText, "______Ah")
            compare(s.page.startingStreet, "flop", "one real card is fewer than four")
            compare(s.shell.startingStreet, "flop")
            tryVerify(() => !picker(s.page).visible, 2000, "picking closes the picker")
            compare(s.page.editingCardIndex, -1)
        }

        function test_aFourCardBoardMakesATurnSpot() {
            const s = setupOfNewProject()
            s.shell.boardText = "AhKsQd2c"
            compare(s.page.startingStreet, "turn")
            compare(s.shell.startingStreet, "turn", "the inferred street reaches the shell")
            s.shell.boardText = "AhKsQd2c3h"
            compare(s.shell.startingStreet, "river")
            s.shell.boardText = "AhKsQd"
            compare(s.shell.startingStreet, "flop")
        }

        function test_clearingTheOnlyTurnCardClearsTheRiver() {
            const s = setupOfNewProject()
            s.shell.boardText = "AhKsQd2c3h"
            clickSlot(s.page, 3)
            clearPickedSlot(s.page)
            compare(s.shell.boardText, "AhKsQd")
            compare(s.shell.startingStreet, "flop")
            tryVerify(() => !picker(s.page).visible, 2000, "clearing closes the picker")
        }

        function test_clearingTheFirstFlopCardClearsTheBoard() {
            const s = setupOfNewProject()
            s.shell.boardText = "AhKsQd2c"
            clickSlot(s.page, 0)
            compare(part(picker(s.page).contentItem, "pickerSubHeading").text, "Flop card")
            clearPickedSlot(s.page)
            compare(s.shell.boardText, "")
        }

        function test_theRiverSlotWaitsForATurn() {
            const s = setupOfNewProject()
            s.shell.boardText = "AhKsQd"
            const river = part(part(s.page, "boardDisplay"), "slot4")
            verify(river.disabled, "no river before a turn")
            mouseClick(river)
            wait(50)
            verify(!picker(s.page).visible, "a disabled river opens nothing")
            s.shell.boardText = "AhKsQd2c"
            verify(!river.disabled)
            clickSlot(s.page, 4)
            compare(part(picker(s.page).contentItem, "pickerSubHeading").text, "River card")
            pick(s.page, "3h")
            compare(s.shell.boardText, "AhKsQd2c3h")
        }

        function test_gapsWithinTheFlopAreAllowed() {
            const s = setupOfNewProject()
            clickSlot(s.page, 1)
            pick(s.page, "7c")
            compare(s.shell.boardText, "__7c")
            verify(!s.page.validBoard(s.shell.boardText))
        }

        function test_usedCardsCannotBePicked() {
            const s = setupOfNewProject()
            s.shell.boardText = "AhKsQd"
            compare(s.page.usedBoardCards, ["Ah", "Ks", "Qd"])
            clickSlot(s.page, 1)
            const dialog = picker(s.page)
            compare(part(dialog.contentItem, "boardCardPicker").usedCards, ["Ah", "Ks", "Qd"])
            pick(s.page, "Ks")
            pick(s.page, "Ah")
            compare(s.shell.boardText, "AhKsQd", "neither the slot's own card nor another one on the board")
            verify(dialog.opened, "the picker stays open")
            pick(s.page, "Jc")
            compare(s.shell.boardText, "AhJcQd")
        }

        function test_pickerClosesOnEscapeAndOutsidePress() {
            const s = setupOfNewProject()
            clickSlot(s.page, 0)
            const dialog = picker(s.page)
            tryVerify(() => dialog.opened, 2000)
            verify(!dialog.modal, "the picker is not modal")
            compare(dialog.title, "Select card")
            keyClick(Qt.Key_Escape)
            tryVerify(() => !dialog.visible, 2000, "Escape closes the picker")
            clickSlot(s.page, 0)
            tryVerify(() => dialog.opened, 2000)
            mouseClick(part(s.page, "pageHeader"))
            tryVerify(() => !dialog.visible, 2000, "a press outside closes the picker")
            compare(s.shell.boardText, "")
        }

        function test_cancelLeavesTheBoard() {
            const s = setupOfNewProject()
            s.shell.boardText = "AhKsQd"
            clickSlot(s.page, 2)
            const dialog = picker(s.page)
            tryVerify(() => dialog.opened, 2000)
            mouseClick(part(dialog.footer, "cancelCardButton"))
            tryVerify(() => !dialog.visible, 2000)
            compare(s.shell.boardText, "AhKsQd")
        }

        function test_pickerStandsUnderTheBoardInsideTheWindow() {
            const s = setupOfNewProject()
            clickSlot(s.page, 2)
            const dialog = picker(s.page)
            tryVerify(() => dialog.opened, 2000)
            const display = part(s.page, "boardDisplay")
            const corner = display.mapToItem(null, 0, display.height)
            const window = s.page.Window
            compare(dialog.x, Math.max(12, Math.min(corner.x, window.width - dialog.width - 12)))
            compare(dialog.y, Math.max(12, Math.min(corner.y + 8, window.height - dialog.height - 12)))
            verify(dialog.x + dialog.width <= window.width - 12)
            verify(dialog.y + dialog.height <= window.height - 12)
            keyClick(Qt.Key_Escape)
        }

        function test_validBoard_data() {
            return [
                {tag: "flop", board: "QsJh2h", valid: true},
                {tag: "turn with spaces", board: "Qs Jh 2h 7c", valid: true},
                {tag: "river", board: "QsJh2h7c3d", valid: true},
                {tag: "lower-case rank, upper-case suit", board: "qSjH2H", valid: true},
                {tag: "empty", board: "", valid: false},
                {tag: "two cards", board: "QsJh", valid: false},
                {tag: "placeholder", board: "QsJh__", valid: false},
                {tag: "gap before the turn", board: "AhKsQd__2c", valid: false},
                {tag: "odd length", board: "QsJh2h7", valid: false},
                {tag: "six cards", board: "QsJh2h7c3d4d", valid: false},
                {tag: "bad suit", board: "QsJh2x", valid: false},
                {tag: "bad rank", board: "QsJh1h", valid: false}
            ]
        }

        function test_validBoard(data) {
            const page = makePage()
            compare(page.validBoard(data.board), data.valid)
        }

        function test_inferStreetFromBoardText_data() {
            return [
                {tag: "empty", board: "", street: "flop"},
                {tag: "flop", board: "QsJh2h", street: "flop"},
                {tag: "turn", board: "QsJh2h7c", street: "turn"},
                {tag: "river", board: "QsJh2h7c3d", street: "river"},
                {tag: "one card in the turn slot", board: "______Ah", street: "flop"},
                {tag: "three cards and a gap", board: "AhKsQd__2c", street: "turn"},
                {tag: "spaces", board: "Qs Jh 2h 7c", street: "turn"},
                {tag: "junk pairs skipped", board: "QsJhxx2h7c", street: "turn"}
            ]
        }

        function test_inferStreetFromBoardText(data) {
            const page = makePage()
            compare(page.inferStreetFromBoardText(data.board), data.street)
        }

        function test_boardSlotsAsCards() {
            const page = makePage({boardText: "__Kd__2c"})
            compare(page._boardCardsArray(), ["", "Kd", "", "2c", ""])
            page._setBoardFromCards(["", "", "", "", ""])
            compare(page.boardText, "")
            page._setBoardFromCards(["Ah", "", "", "", "5s"])
            compare(page.boardText, "Ah______5s")
            page.setBoardCardAt(1, "kd")
            compare(page.boardText, "AhKd____5s", "a card is written rank upper, suit lower")
            page.setBoardCardAt(2, "Kd")
            compare(page.boardText, "AhKd____5s", "a card already on the board is refused")
            page.setBoardCardAt(2, "x")
            page.setBoardCardAt(7, "2c")
            compare(page.boardText, "AhKd____5s", "no card or no slot changes nothing")
            page.clearBoardFrom(1)
            compare(page.boardText, "Ah")
        }

        // ---- Header

        function test_headerBadgeAndContinueButton() {
            const page = makePage()
            const header = part(page, "pageHeader")
            compare(header.title, "Project Setup")
            compare(header.subtitle, "Configure your game tree: board, ranges, and bet sizing.")
            compare(header.badge, "Setup Required")
            sameColor(header.badgeColor, page._theme.warn, "badge without a board")
            page.boardText = "QsJh2h"
            compare(header.badge, "Ready")
            sameColor(header.badgeColor, page._theme.success, "badge with a board")
            const button = part(page, "continueButton")
            compare(button.text, "Continue to Solve →")
            verify(!button.enabled)
            goToSolveSpy.target = page
            page.canSolve = true
            verify(button.enabled)
            mouseClick(button)
            compare(goToSolveSpy.count, 1)
        }

        function test_continueFollowsTheShell() {
            const s = setupOfNewProject()
            compare(s.page.controller, s.shell.controller)
            compare(s.page.canSolve, false)
            s.shell.applyProjectState(s.shell.defaultPreset)
            s.shell.controller.grantMemory()
            tryVerify(() => s.shell.canSolve, 2000)
            verify(s.page.canSolve)
            mouseClick(part(s.page, "continueButton"))
            compare(s.shell.navIndex, 2, "the shell goes to Solve")
        }

        // ---- Memory line

        function test_memoryLineTellsRequiredAndAvailable() {
            const controller = createTemporaryObject(memoryControllerComponent, root)
            const page = makePage({controller: controller})
            const line = part(page, "memoryLine")
            compare(line.text, "Solve RAM: 1.2 GB required • 8.0 GB available")
            sameColor(line.color, page._theme.textMuted, "enough memory")
            controller.solveRequiredMemoryBytes = 9000
            sameColor(line.color, page._theme.danger, "required above available")
            controller.solveRequiredMemoryBytes = 8000
            sameColor(line.color, page._theme.textMuted, "equal is not short")
            controller.solveRequiredMemoryBytes = 9000
            controller.systemAvailableMemoryBytes = 0
            sameColor(line.color, page._theme.textMuted, "no available figure says nothing")
            controller.systemAvailableMemoryBytes = NaN
            sameColor(line.color, page._theme.textMuted, "a figure that is no number says nothing")
            controller.solveRequiredMemoryText = ""
            compare(line.text, "Solve RAM: — required • 8.0 GB available")
        }

        function test_memoryLineWithoutAController() {
            const page = makePage()
            const line = part(page, "memoryLine")
            compare(line.text, "Solve RAM: — required • — available")
            sameColor(line.color, page._theme.textMuted, "no controller")
        }

        function test_memoryLineReadsTheRealController() {
            const page = makePage({controller: appController})
            const available = String(appController.systemAvailableMemoryText)
            const expected = available === "" ? "—" : available
            verify(part(page, "memoryLine").text.endsWith(expected + " available"), part(page, "memoryLine").text)
        }

        // ---- Game settings

        function test_fieldsStoreClampedOrDefaultValues_data() {
            return [
                {tag: "pot 0 stores 1", field: "startingPot", typed: "0", value: 1, shown: "1"},
                {tag: "empty pot stores 100", field: "startingPot", typed: "", value: 100, shown: "100"},
                {tag: "pot 250", field: "startingPot", typed: "250", value: 250, shown: "250"},
                {tag: "stack 0 stores 1", field: "effectiveStack", typed: "0", value: 1, shown: "1"},
                {tag: "empty stack stores 100", field: "effectiveStack", typed: "", value: 100, shown: "100"},
                {tag: "stack 910", field: "effectiveStack", typed: "910", value: 910, shown: "910"},
                {tag: "rake 5.50 shows 5.5", field: "rakePercent", typed: "5.50", value: 5.5, shown: "5.5"},
                {tag: "empty rake stores 0", field: "rakePercent", typed: "", value: 0, shown: "0"},
                {tag: "rake 100", field: "rakePercent", typed: "100", value: 100, shown: "100"},
                {tag: "empty rake cap stores 0", field: "rakeCap", typed: "", value: 0, shown: "0"},
                {tag: "rake cap 30", field: "rakeCap", typed: "30", value: 30, shown: "30"},
                {tag: "empty target stores 0.10", field: "targetExploitability", typed: "", value: 0.1, shown: "0.1"},
                {tag: "target 0 stays 0", field: "targetExploitability", typed: "0", value: 0, shown: "0"},
                {tag: "target 0.25", field: "targetExploitability", typed: "0.25", value: 0.25, shown: "0.25"},
                {tag: "target six decimals", field: "targetExploitability", typed: "0.000125", value: 0.000125,
                 shown: "0.000125"}
            ]
        }

        function test_fieldsStoreClampedOrDefaultValues(data) {
            const s = setupOfNewProject()
            const field = part(s.page, data.field + "Field")
            typeInto(field, data.typed)
            compare(s.page[data.field], data.value)
            compare(s.shell[data.field], data.value, "the shell gets it")
            compare(field.text, data.shown)
        }

        // Text that the validator would not let through by typing still ends inside the bounds.
        function test_fieldsClampToTheirBounds_data() {
            return [
                {tag: "pot", field: "startingPot", text: "250000", value: 100000},
                {tag: "stack", field: "effectiveStack", text: "-5", value: 1},
                {tag: "rake", field: "rakePercent", text: "250", value: 100},
                {tag: "rake cap", field: "rakeCap", text: "2000000", value: 1000000},
                {tag: "target", field: "targetExploitability", text: "-1", value: 0},
                {tag: "target not a number", field: "targetExploitability", text: "abc", value: 0.1},
                {tag: "pot not a number", field: "startingPot", text: "abc", value: 100}
            ]
        }

        function test_fieldsClampToTheirBounds(data) {
            const s = setupOfNewProject()
            const field = part(s.page, data.field + "Field")
            field.forceActiveFocus()
            field.text = data.text
            keyClick(Qt.Key_Return)
            compare(s.shell[data.field], data.value)
        }

        function test_fieldsFinishOnFocusLoss() {
            const s = setupOfNewProject()
            const pot = part(s.page, "startingPotField")
            mouseClick(pot)
            pot.selectAll()
            keyClick(Qt.Key_Delete)
            keyClick(Qt.Key_0)
            mouseClick(part(s.page, "effectiveStackField"))
            compare(s.shell.startingPot, 1, "leaving the field stores it, also when the validator holds it back")
            compare(pot.text, "1")
        }

        function test_integerFieldsWaitForFocusLossToFollowTheValue() {
            const s = setupOfNewProject()
            const pot = part(s.page, "startingPotField")
            compare(pot.text, "180")
            mouseClick(pot)
            pot.selectAll()
            keyClick(Qt.Key_Delete)
            keyClick(Qt.Key_5)
            s.shell.startingPot = 300
            compare(pot.text, "5", "the typing is not snapped back while focused")
            keyClick(Qt.Key_Tab)
            compare(s.shell.startingPot, 5)
            s.shell.startingPot = 300
            s.shell.syncPagesFromRoot()
            compare(pot.text, "300", "unfocused, the field follows the value")
        }

        function test_fieldPlaceholdersAndWidths() {
            const page = makePage()
            const expected = {startingPot: "e.g., 100", effectiveStack: "e.g., 100", rakePercent: "e.g., 5.0",
                              rakeCap: "e.g., 0", targetExploitability: "e.g., 0.10"}
            for (const key in expected) {
                const field = part(page, key + "Field")
                compare(field.placeholderText, expected[key], key)
                compare(field.width, 60, key)
            }
            compare(page.gameSettingsInputColumnWidth, 60)
            compare(page.sizingStreetColumnWidth, 70)
            page.gameSettingsInputColumnWidth = 72
            tryCompare(part(page, "rakeCapField"), "width", 72, 1000, "the column width is set in one place")
        }

        function test_quickTargetButtons() {
            const s = setupOfNewProject()
            const field = part(s.page, "targetExploitabilityField")
            const targets = [{name: "target_1", value: 1.0, text: "1%"}, {name: "target_0.1", value: 0.1, text: "0.1%"},
                             {name: "target_0.5", value: 0.5, text: "0.5%"}]
            for (const target of targets) {
                const button = part(s.page, target.name)
                compare(button.text, target.text)
                mouseClick(button)
                compare(s.shell.targetExploitability, target.value, target.text)
                compare(field.text, String(target.value))
            }
        }

        function test_targetAmountIsChips() {
            const page = makePage({startingPot: 180, targetExploitability: 0.5})
            compare(page.targetExploitabilityAmount(), 0.9)
            page.startingPot = 0
            compare(page.targetExploitabilityAmount(), 0.0)
            page.startingPot = 200
            page.targetExploitability = NaN
            compare(page.targetExploitabilityAmount(), 0.0)
        }

        // ---- Sizing

        function test_sizingTextsAreStoredAsTyped() {
            const s = setupOfNewProject()
            const field = part(part(s.page, "oopSizingCard"), "oopTurnRaiseSizesText")
            compare(field.placeholderText, "75, 125, 200")
            compare(field.width, 70)
            typeInto(field, "50,a,1e9")
            compare(s.shell.oopTurnRaiseSizesText, "50,a,1e9", "bad input is stored, not refused")
            const ipBet = part(part(s.page, "ipSizingCard"), "ipRiverBetSizesText")
            compare(ipBet.placeholderText, "33, 75, 125")
            typeInto(ipBet, "33 75")
            compare(s.shell.ipRiverBetSizesText, "33 75")
            s.shell.resetToDefaults()
            compare(ipBet.text, "70", "the field follows the project")
        }

        function test_sizingSwitches() {
            const s = setupOfNewProject()
            const oopCard = part(s.page, "oopSizingCard")
            const ipCard = part(s.page, "ipSizingCard")
            mouseClick(part(oopCard, "oopTurnDontDonk"))
            compare(s.shell.oopTurnDontDonk, true)
            mouseClick(part(ipCard, "ipRiverAddAllIn"))
            compare(s.shell.ipRiverAddAllIn, true)
            compare(findChild(ipCard, "ipFlopDontDonk"), null, "IP has no donk row")
            s.shell.applyProjectState({oopFlopAddAllIn: true})
            compare(part(oopCard, "oopFlopAddAllIn").checked, true)
        }

        function test_jamFieldFollowsItsSwitchAndStoresWhileTyping() {
            const s = setupOfNewProject()
            const card = part(s.page, "oopSizingCard")
            const field = part(card, "oopAddAllInIfJamLtPct")
            const toggle = part(card, "oopAddAllInIfJamLtEnabled")
            compare(field.placeholderText, "e.g. 30")
            verify(!field.enabled, "off without its switch")
            mouseClick(toggle)
            compare(s.shell.oopAddAllInIfJamLtEnabled, true)
            verify(field.enabled)
            mouseClick(field)
            field.selectAll()
            keyClick(Qt.Key_Delete)
            keyClick(Qt.Key_4)
            compare(s.shell.oopAddAllInIfJamLtPct, 4, "stored while typing")
            keyClick(Qt.Key_5)
            compare(s.shell.oopAddAllInIfJamLtPct, 45)
            compare(s.shell.ipAddAllInIfJamLtPct, 0, "each player has his own")
            field.selectAll()
            keyClick(Qt.Key_Delete)
            keyClick(Qt.Key_Return)
            compare(s.shell.oopAddAllInIfJamLtPct, 0, "no number gives 0")
            field.text = "2500"
            keyClick(Qt.Key_Return)
            compare(s.shell.oopAddAllInIfJamLtPct, 1000, "clamped when editing ends")
        }

        // ---- Layout

        function test_recommendedWindowWidth() {
            const page = makePage()
            const board = part(page, "boardDisplay")
            const row1 = 48 + Math.max(board.implicitWidth + 27, 240)
                         + 16 + part(page, "gameSettingsCard").implicitWidth
                         + 16 + part(page, "oopSizingCard").width + 16 + part(page, "ipSizingCard").width
            const ranges = 48 + page.oopMatrix.implicitWidth + 16 + page.ipMatrix.implicitWidth
            compare(page.oopMatrix.implicitWidth, 492, "a matrix at cell size 36")
            compare(page.recommendedWindowWidth, Math.ceil(Math.max(row1, ranges)))
            verify(page.recommendedWindowWidth > 1000)
        }

        function test_shellTakesTheRecommendedWidth() {
            const s = setupOfNewProject()
            compare(s.shell.projectRecommendedWidth, s.page.recommendedWindowWidth)
        }

        function test_narrowWindowScrollsSideways() {
            const page = makePage()
            const flick = part(page, "projectFlickable")
            const bar = part(page, "horizontalScrollBar")
            compare(flick.contentWidth, Math.max(flick.width, page.recommendedWindowWidth))
            page.width = page.recommendedWindowWidth - 200
            compare(flick.contentWidth, page.recommendedWindowWidth, "the content keeps its width")
            compare(bar.policy, ScrollBar.AlwaysOn)
            page.width = page.recommendedWindowWidth + 1
            compare(bar.policy, ScrollBar.AlwaysOff, "one pixel over is not worth a bar")
            compare(flick.contentWidth, page.width)
        }

        function test_firstRowCardsShareTheTallestHeight() {
            const page = makePage()
            const names = ["boardCard", "gameSettingsCard", "oopSizingCard", "ipSizingCard"]
            const heights = names.map(name => part(page, name).height)
            const tallest = Math.max.apply(null, names.map(name => part(page, name).implicitHeight))
            for (let i = 0; i < names.length; ++i)
                compare(heights[i], tallest, names[i])
        }

        function test_wheelScrollsThePage() {
            const page = makePage()
            page.height = 500
            page.width = 900
            const flick = part(page, "projectFlickable")
            waitForRendering(page)
            mouseWheel(page, 400, 300, 0, -240)
            compare(flick.contentY, 120, "half the wheel delta down")
            mouseWheel(page, 400, 300, 0, 240)
            compare(flick.contentY, 0)
            mouseWheel(page, 400, 300, 0, 240)
            compare(flick.contentY, 0, "clamped at the top")
            mouseWheel(page, 400, 300, 0, -240, Qt.NoButton, Qt.ShiftModifier)
            compare(flick.contentX, 120, "Shift turns the wheel sideways")
            compare(flick.contentY, 0)
            mouseWheel(page, 400, 300, -100000, 0, Qt.NoButton, Qt.ShiftModifier)
            compare(flick.contentX, flick.contentWidth - flick.width, "clamped at the right end")
            mouseWheel(page, 400, 300, -480, 0)
            compare(flick.contentY, 240, "a sideways wheel without Shift scrolls down")
        }

        // ---- Ranges

        function test_rangeCardsFollowAndWriteTheRanges() {
            const s = setupOfNewProject()
            const oopPanel = part(s.page, "oopRangePanel")
            const ipPanel = part(s.page, "ipRangePanel")
            compare(oopPanel.player, "oop")
            compare(ipPanel.player, "ip")
            compare(s.page.oopMatrix, oopPanel.matrix)
            compare(s.page.ipMatrix, ipPanel.matrix)
            s.shell.oopRangeText = "AA,KK"
            compare(oopPanel.rangeText, "AA,KK")
            oopPanel.rangeTextEdited("QQ+")
            compare(s.shell.oopRangeText, "QQ+")
            ipPanel.rangeTextEdited("AKs")
            compare(s.shell.ipRangeText, "AKs")
            compare(s.shell.oopRangeText, "QQ+")
            compare(oopPanel.matrix.weights["KK"], 1)
        }

        function test_rangeFunctionsOnThePage() {
            const page = makePage()
            compare(page.expandHand("AK"), ["AKs", "AKo"])
            compare(page.parseRangeWeights("QQ+:0.5")["AA"], 0.5)
            compare(page.toggleHand("AA, KK", "KK", 1, 1), "AA")
            compare(page.normalizeImportedRangeText("AA,KK:0.5,QQ"), "AA:0.5, KK:0.5, QQ")
        }
    }
}
