// Photographs play mode's views on a stand-in page, framed like the Results page's right side in a 1600x1000
// window: before a session, the hero to act, a hand ended on a mistake with its details open, and a drill with
// its feedback above the last hand's details, in dark and light. One PNG per state goes into the folder that
// KELVANE_SCREENSHOT_DIR names. Run on its own: kelvane_qml_tests -input tests/qml/screenshots/play_views_shots.qml
import QtQuick
import QtTest
import Kelvane
import ".."

Item {
    id: root

    width: 1600
    height: 1000

    Theme { id: shotTheme }
    Typography { id: shotType }

    PlayStandInPage { id: standIn }

    Rectangle {
        id: frame

        readonly property int treeWidth: 330
        // Where the Strategy View's header and action frequencies stand above the play area.
        readonly property int headerHeight: 150

        anchors.fill: parent
        color: shotTheme.bg0

        Rectangle {
            id: treeStandIn

            width: frame.treeWidth
            height: parent.height
            color: shotTheme.bg1
            border.color: shotTheme.stroke

            Text {
                x: shotTheme.spaceMd
                y: shotTheme.spaceMd
                text: "Game Tree"
                color: shotTheme.textMuted
                font.pixelSize: shotType.headingSm
            }
        }

        Rectangle {
            id: headerStandIn

            x: frame.treeWidth + shotTheme.spaceMd
            y: shotTheme.spaceMd
            width: parent.width - x - shotTheme.spaceMd
            height: frame.headerHeight - 2 * shotTheme.spaceMd
            radius: shotTheme.radiusMd
            color: shotTheme.surface
            border.color: shotTheme.stroke

            Text {
                x: shotTheme.spaceMd
                y: shotTheme.spaceMd
                text: "Strategy View · Action Frequencies"
                color: shotTheme.textMuted
                font.pixelSize: shotType.headingSm
            }
        }

        PlayPanel {
            x: headerStandIn.x
            y: frame.headerHeight
            width: headerStandIn.width
            height: parent.height - y - shotTheme.spaceMd
            page: standIn
            theme: shotTheme
            type: shotType
        }
    }

    TestCase {
        id: shooter

        readonly property int settleMs: 300
        readonly property var states: [
            {file: "before-session", apply: () => beforeSession()},
            {file: "hero-to-act", apply: () => heroToAct()},
            {file: "mistake-details", apply: () => mistakeWithDetails()},
            {file: "drill-feedback", apply: () => drillWithFeedback()}
        ]

        name: "PlayViewsShots"
        when: windowShown

        function reset(extra) {
            const base = {playRole: "", playSessionStarted: false, playBoardText: "", playAwaitingUserAction: false,
                          playHandComplete: false, oopCard1: "", oopCard2: "", ipCard1: "", ipCard2: "",
                          playLastActionActor: "", playLastActionText: "", playDrillMode: false,
                          playDrillFeedbackText: "", playDrillFeedbackWrong: false, actingSeat: "", actionNames: [],
                          pot: NaN, stacks: {OOP: NaN, IP: NaN}, canChangeTurn: false, canChangeRiver: false,
                          drillAvailable: false, drillContextText: ""}
            const values = Object.assign(base, extra)
            for (const key in values)
                standIn[key] = values[key]
        }

        function beforeSession() {
            reset({pot: 10, stacks: {OOP: 95, IP: 95}})
            standIn.selectPlayLog(-1)
        }

        function heroToAct() {
            reset({playRole: "IP", playSessionStarted: true, playBoardText: "Ks7d2cQh", oopCard1: "Td",
                   oopCard2: "9d", ipCard1: "Ah", ipCard2: "Qh", playLastActionActor: "OOP",
                   playLastActionText: "Bet 75%", playAwaitingUserAction: true, actingSeat: "IP",
                   actionNames: ["Fold", "Call", "Raise 250%", "All-in"], pot: 27, stacks: {OOP: 81, IP: 88},
                   canChangeTurn: true, drillAvailable: true})
            standIn.selectPlayLog(-1)
        }

        function mistakeWithDetails() {
            reset({playRole: "OOP", playSessionStarted: true, playBoardText: "Ks7d2cJd", oopCard1: "9s",
                   oopCard2: "9h", ipCard1: "Ac", ipCard2: "Kc", playHandComplete: true, pot: 20,
                   stacks: {OOP: 90, IP: 90}})
            standIn.selectPlayLog(1)
        }

        function drillWithFeedback() {
            reset({playRole: "IP", playSessionStarted: true, playBoardText: "Ks7d2c", oopCard1: "8c", oopCard2: "8d",
                   ipCard1: "Js", ipCard2: "Ts", playDrillMode: true, playAwaitingUserAction: true, actingSeat: "IP",
                   actionNames: ["Check", "Bet 33%", "Bet 75%"], pot: 10, stacks: {OOP: 95, IP: 95},
                   drillContextText: "OOP action: Check", playDrillFeedbackText: "Wrong — best: Check (EV -0.250)",
                   playDrillFeedbackWrong: true})
            standIn.selectPlayLog(0)
        }

        function save(fileName) {
            let saved = false
            const path = screenshotDirectory + "/" + fileName + ".png"
            wait(settleMs)
            waitForRendering(root)
            verify(root.grabToImage(result => saved = result.saveToFile(path)), "grab " + fileName)
            tryVerify(() => saved, 10000, "wrote " + path)
            console.info("wrote " + path)
        }

        function test_shots_data() {
            return [{tag: "dark", dark: true}, {tag: "light", dark: false}]
        }

        function test_shots(data) {
            verify(screenshotDirectory !== "", "KELVANE_SCREENSHOT_DIR names the output folder")
            shotTheme.dark = data.dark
            for (let i = 0; i < states.length; ++i) {
                states[i].apply()
                save("play-" + String(i + 1).padStart(2, "0") + "-" + states[i].file + "-" + data.tag)
            }
        }
    }
}
