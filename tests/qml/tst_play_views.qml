import QtQuick
import QtTest
import Kelvane

// The views of play mode on a stand-in page: which controls show in which state, what each one calls, the cards
// face up or down by seat, the hand log's rows and the hand details.
TestCase {
    id: testCase

    name: "PlayViews"
    when: windowShown
    visible: true
    width: 1250
    height: 900

    Theme { id: testTheme }
    Typography { id: testType }

    // The panel owns its page, so that the page outlives every binding of the panel.
    Component {
        id: harnessComponent

        Item {
            readonly property alias panel: playPanel

            width: testCase.width
            height: testCase.height

            // Declared first, so that it goes before the page it reads.
            PlayPanel {
                id: playPanel

                anchors.fill: parent
                page: standIn
                theme: testTheme
                type: testType
            }

            PlayStandInPage { id: standIn }
        }
    }

    function makePanel(state) {
        const harness = createTemporaryObject(harnessComponent, testCase)
        verify(harness)
        const values = state || {}
        for (const key in values)
            harness.panel.page[key] = values[key]
        waitForRendering(harness)
        return harness.panel
    }

    // A hand on the turn with the hero as OOP, its cards and the opponent's dealt.
    function runningHand(extra) {
        return Object.assign({playRole: "OOP", playSessionStarted: true, playBoardText: "Ks7d2cQh",
                              oopCard1: "Ah", oopCard2: "Kh", ipCard1: "Qs", ipCard2: "Qc", pot: 24,
                              stacks: {OOP: 88, IP: 76}}, extra || {})
    }

    function child(panel, name) {
        const item = findChild(panel, name)
        verify(item, name + " exists")
        return item
    }

    function shown(item) {
        return item.visible && item.width > 0 && item.height > 0
    }

    function clickItem(item) {
        verify(shown(item), item.objectName + " can be clicked")
        mouseClick(item, item.width / 2, item.height / 2)
    }

    function actionButtons(panel) {
        const buttons = []
        const search = item => {
            for (let i = 0; i < item.children.length; ++i) {
                const c = item.children[i]
                if (c.objectName === "playActionButton" && c.visible)
                    buttons.push(c)
                search(c)
            }
        }
        search(panel)
        return buttons
    }

    function compareColor(actual, expected, message) {
        const a = Qt.color(actual)
        const e = Qt.color(expected)
        fuzzyCompare(a.r, e.r, 0.01, message + " (red)")
        fuzzyCompare(a.g, e.g, 0.01, message + " (green)")
        fuzzyCompare(a.b, e.b, 0.01, message + " (blue)")
        fuzzyCompare(a.a, e.a, 0.01, message + " (alpha)")
    }

    function test_table_artwork_loads() {
        const panel = makePanel()
        const image = child(panel, "playTableImage")
        tryCompare(image, "status", Image.Ready)
        verify(image.paintedWidth > 0 && image.paintedHeight > 0)
        // The drawing keeps its proportions, so one side of the area is not filled.
        verify(Math.abs(image.paintedWidth / image.paintedHeight - 1000 / 620) < 0.02)
    }

    function test_role_buttons_start_a_session_data() {
        return [{tag: "OOP", button: "playRoleOop", role: "OOP"},
                {tag: "both", button: "playRoleBoth", role: "BOTH"},
                {tag: "IP", button: "playRoleIp", role: "IP"}]
    }

    function test_role_buttons_start_a_session(data) {
        const panel = makePanel()
        compare(child(panel, "playSubtitle").text, "Choose a role to start")
        clickItem(child(panel, data.button))
        compare(panel.page.startedRoles, [data.role])
        compare(child(panel, "playRoleButtons").visible, false, "the role buttons leave once a session runs")
        compare(child(panel, "playSubtitle").text, "Role: " + data.role)
    }

    function test_before_a_session_only_the_roles_show() {
        const panel = makePanel()
        verify(shown(child(panel, "playRoleButtons")))
        compare(child(panel, "playRoleOop").text, "Play as OOP")
        compare(child(panel, "playRoleBoth").text, "Play as both")
        compare(child(panel, "playRoleIp").text, "Play as IP")
        compare(child(panel, "playBoardPlate").visible, false)
        compare(child(panel, "anotherHandButton").visible, false)
        compare(child(panel, "drillButton").visible, false)
        compare(child(panel, "playBubble").visible, false)
        compare(child(panel, "drillFeedback").visible, false)
        compare(child(panel, "drillContext").visible, false)
        compare(actionButtons(panel).length, 0)
    }

    function test_running_hand_shows_board_pot_and_stacks() {
        const panel = makePanel(runningHand())
        compare(child(panel, "playRoleButtons").visible, false)
        verify(shown(child(panel, "playBoardPlate")))
        compare(child(panel, "playBoard").boardText, "Ks7d2cQh")
        compare(child(panel, "playBoard").cardScale, 1.05)
        compare(child(panel, "playPotPill").text, "Pot: 24")
        compare(child(panel, "playStackOop").text, "Stack: 88")
        compare(child(panel, "playStackIp").text, "Stack: 76")
        compare(child(panel, "anotherHandButton").visible, false)
        panel.page.pot = NaN
        compare(child(panel, "playPotPill").text, "Pot: —")
    }

    function test_seats_stand_top_and_bottom_with_the_dealer_at_ip() {
        const panel = makePanel(runningHand())
        const oop = child(panel, "playSeatOop")
        const ip = child(panel, "playSeatIp")
        verify(oop.mapToItem(panel, 0, 0).y + oop.height < ip.mapToItem(panel, 0, 0).y, "OOP sits above IP")
        const board = child(panel, "playBoardPlate").mapToItem(panel, 0, 0).y
        verify(oop.mapToItem(panel, 0, 0).y + oop.height <= board, "the board is below OOP")
        verify(ip.mapToItem(panel, 0, 0).y >= board + child(panel, "playBoardPlate").height, "and above IP")
        verify(shown(findChild(ip, "dealerButton")))
        compare(findChild(oop, "dealerButton").visible, false)
        compare(child(panel, "playCardOop0").sizeScale, 0.95)
    }

    function test_cards_face_up_only_for_the_hero_data() {
        return [{tag: "OOP", role: "OOP", oopUp: true, ipUp: false},
                {tag: "IP", role: "IP", oopUp: false, ipUp: true},
                {tag: "both", role: "BOTH", oopUp: true, ipUp: true}]
    }

    function test_cards_face_up_only_for_the_hero(data) {
        const panel = makePanel(runningHand({playRole: data.role}))
        for (const name of ["playCardOop0", "playCardOop1"])
            compare(child(panel, name).faceDown, !data.oopUp, name)
        for (const name of ["playCardIp0", "playCardIp1"])
            compare(child(panel, name).faceDown, !data.ipUp, name)
        compare(child(panel, "playCardOop0").rank, "A")
        compare(child(panel, "playCardIp1").suit, "c")
    }

    function test_an_undealt_hidden_card_is_an_empty_slot() {
        const panel = makePanel(runningHand({ipCard1: "", ipCard2: ""}))
        const card = child(panel, "playCardIp0")
        compare(card.faceDown, false)
        verify(findChild(card, "slot").visible)
    }

    function test_action_buttons_stand_beside_the_acting_seat() {
        const panel = makePanel(runningHand({playRole: "IP", playAwaitingUserAction: true, actingSeat: "IP",
                                             actionNames: ["Fold", "Call", "Raise 250%"]}))
        const ipActions = findChild(child(panel, "playSeatIp"), "playActions")
        verify(shown(ipActions))
        compare(findChild(child(panel, "playSeatOop"), "playActions").visible, false)
        const buttons = actionButtons(panel)
        compare(buttons.map(b => b.text), ["Fold", "Call", "Raise 250%"])
        const cards = child(panel, "playCardsIp")
        const cardsRight = cards.mapToItem(panel, cards.width, 0).x
        for (const b of buttons)
            verify(b.mapToItem(panel, 0, 0).x > cardsRight, b.text + " is right of the IP cards")
        clickItem(buttons[2])
        compare(panel.page.chosenActions, [2])
        compare(actionButtons(panel).length, 0, "the buttons leave once the hero has acted")
    }

    function test_no_action_buttons_while_the_solution_acts() {
        const panel = makePanel(runningHand({actingSeat: "IP", actionNames: ["Check", "Bet 75%"]}))
        compare(actionButtons(panel).length, 0)
    }

    function test_bubble_stands_at_the_last_actor() {
        const panel = makePanel(runningHand({playLastActionActor: "IP", playLastActionText: "Bet 75%"}))
        const ipBubble = findChild(child(panel, "playSeatIp"), "playBubble")
        verify(shown(ipBubble))
        compare(ipBubble.text, "Bet 75%")
        compare(findChild(child(panel, "playSeatOop"), "playBubble").visible, false)
        panel.page.playLastActionText = ""
        compare(ipBubble.visible, false)
    }

    function test_another_hand_at_the_end_left_of_the_board() {
        const panel = makePanel(runningHand({playHandComplete: true}))
        const button = child(panel, "anotherHandButton")
        verify(shown(button))
        compare(button.text, "Another hand")
        const plate = child(panel, "playBoardPlate")
        verify(button.mapToItem(panel, button.width, 0).x <= plate.mapToItem(panel, 0, 0).x)
        compare(child(panel, "drillButton").visible, false, "no drill once the hand is over")
        clickItem(button)
        compare(panel.page.anotherHandCalls, 1)
    }

    function test_drill_button_states() {
        const panel = makePanel(runningHand())
        const button = child(panel, "drillButton")
        verify(shown(button))
        compare(button.text, "Drill spot")
        compare(button.enabled, false, "disabled where no decision can be drilled")
        panel.page.drillAvailable = true
        verify(button.enabled)
        clickItem(button)
        compare(panel.page.startDrillCalls, 1)
        compare(button.text, "Stop drill")
        panel.page.drillAvailable = false
        panel.page.playHandComplete = true
        verify(shown(button), "a running drill can always be stopped")
        clickItem(button)
        compare(panel.page.stopDrillCalls, 1)
        compare(button.visible, false)
    }

    function test_drill_context_label() {
        const panel = makePanel(runningHand({playDrillMode: true, drillContextText: "OOP action: Check"}))
        const label = child(panel, "drillContext")
        verify(shown(label))
        compare(label.text, "OOP action: Check")
        const ip = child(panel, "playSeatIp")
        verify(label.mapToItem(panel, 0, 0).y + label.height <= ip.mapToItem(panel, 0, 0).y, "just above IP")
    }

    function test_feedback_toast_colour() {
        const panel = makePanel(runningHand({playDrillMode: true}))
        const toast = child(panel, "drillFeedback")
        compare(toast.visible, false)
        panel.page.playDrillFeedbackText = "Correct"
        verify(shown(toast))
        compareColor(toast.color, testTheme.success, "a right answer")
        panel.page.playDrillFeedbackText = "Wrong — best: Check (EV -0.250)"
        panel.page.playDrillFeedbackWrong = true
        compareColor(toast.color, testTheme.danger, "a wrong answer")
    }

    function test_turn_and_river_clicks_change_the_runout() {
        const panel = makePanel(runningHand({playBoardText: "Ks7d2cQh8s"}))
        const board = child(panel, "playBoard")
        const hint = child(panel, "playRunoutHint")
        compare(hint.visible, false)
        mouseClick(findChild(board, "slot3"))
        compare(panel.page.runoutChanges, [], "not clickable when the page says no")

        panel.page.canChangeTurn = true
        verify(shown(hint))
        compare(hint.text, "Click Turn/River to change")
        mouseClick(findChild(board, "slot4"))
        compare(panel.page.runoutChanges, [], "the river stays fixed while only the turn may change")
        mouseClick(findChild(board, "slot3"))
        compare(panel.page.runoutChanges, ["turn"])

        panel.page.canChangeTurn = false
        panel.page.canChangeRiver = true
        verify(shown(hint))
        mouseClick(findChild(board, "slot4"))
        compare(panel.page.runoutChanges, ["turn", "river"])
        mouseClick(findChild(board, "slot0"))
        compare(panel.page.runoutChanges, ["turn", "river"], "the flop cannot be changed")
    }

    function test_hand_log_rows() {
        const panel = makePanel(runningHand())
        const log = child(panel, "playHandLog")
        compare(log.badge, "3 hands")
        compare(child(panel, "playHandLogEmpty").visible, false)
        const list = child(panel, "playHandLogList")
        compare(list.count, 3)
        const perfect = findChild(list, "playLogRow0")
        const mistake = findChild(list, "playLogRow1")
        const asIp = findChild(list, "playLogRow2")
        compare(findChild(perfect, "logBoard").text, "Ks7d2cQh8s")
        compare(findChild(perfect, "logHeroCards").cardsText, "AhKh")
        compare(findChild(asIp, "logHeroCards").cardsText, "Ac7c", "the IP hero's cards")
        compare(findChild(perfect, "logFooter").text, "Perfect")
        compare(findChild(mistake, "logFooter").text, "EV -0.512")
        compareColor(perfect.color, testTheme.withOpacity(testTheme.success, 0.12), "a clean hand")
        compareColor(mistake.color, testTheme.withOpacity(testTheme.danger, 0.12), "a mistake")

        mouseClick(mistake)
        compare(panel.page.selectedRows, [1])
        compareColor(mistake.color, testTheme.withOpacity(testTheme.danger, 0.18), "the selected mistake")
        compareColor(perfect.color, testTheme.withOpacity(testTheme.success, 0.12), "the others stay plain")
    }

    function test_empty_log_has_no_count() {
        const panel = makePanel()
        panel.page.playHandLog.clear()
        tryCompare(child(panel, "playHandLog"), "badge", "")
        compare(child(panel, "playHandLogList").count, 0)
        verify(shown(child(panel, "playHandLogEmpty")))
        compare(child(panel, "playHandLogEmpty").text, "No hands played yet.")
    }

    function test_details_of_a_mistake_on_the_turn() {
        const panel = makePanel(runningHand())
        const details = child(panel, "playHandDetails")
        compare(details.visible, false, "nothing selected, no details")
        mouseClick(findChild(child(panel, "playHandLogList"), "playLogRow1"))
        tryVerify(() => shown(details))
        tryCompare(details, "height", 260)
        compare(details.title, "Hand details")

        const columns = ["detailsFlop", "detailsTurn", "detailsRiver", "detailsHands", "detailsSummary"]
        const width = child(panel, columns[0]).width
        for (const name of columns) {
            const column = child(panel, name)
            verify(column.width >= 170, name + " is at least 170 wide")
            fuzzyCompare(column.width, width, 1, name + " is as wide as the others")
        }

        const flop = child(panel, "detailsFlop")
        compare(findChild(flop, "streetCards").cardsText, "Ks7d2c")
        compare(findChild(flop, "streetActions").count, 3)
        const turn = child(panel, "detailsTurn")
        compare(findChild(turn, "streetCards").cardsText, "Jd")
        compare(findChild(turn, "streetNotReached").visible, false)
        compare(findChild(turn, "streetActions").count, 1)
        const river = child(panel, "detailsRiver")
        verify(shown(findChild(river, "streetNotReached")), "the river was never dealt")
        compare(findChild(river, "streetNotReached").text, "—")
        compare(findChild(river, "streetCards").visible, false)
        compare(child(panel, "summaryLines").count, 6)
    }

    function test_a_fold_on_the_flop_has_no_turn_or_river() {
        const panel = makePanel(runningHand())
        mouseClick(findChild(child(panel, "playHandLogList"), "playLogRow2"))
        verify(shown(findChild(child(panel, "detailsTurn"), "streetNotReached")))
        verify(shown(findChild(child(panel, "detailsRiver"), "streetNotReached")))
        compare(child(panel, "summaryLines").count, 3)
    }

    function test_close_deselects() {
        const panel = makePanel(runningHand())
        panel.page.selectPlayLog(0)
        const details = child(panel, "playHandDetails")
        verify(shown(details))
        clickItem(child(panel, "playDetailsClose"))
        compare(panel.page.selectedRows, [0, -1])
        compare(details.visible, false)
    }
}
