// The head of the Strategy View: the title, the board along the walked path, who acts, and the solve's EVs and
// exploitability.
import QtQuick
import QtQuick.Layouts
import Kelvane

RowLayout {
    id: header

    property var page: null
    property var theme: null
    property var type: null

    readonly property real _pillAlpha: 0.15
    readonly property int _pillHeight: 26
    readonly property int _statWidth: 150
    readonly property int _evDecimals: 3
    readonly property int _exploitabilityDecimals: 4

    function _controllerNumber(name) {
        const controller = page.controller
        return controller && controller[name] !== undefined ? Number(controller[name]) : 0
    }

    // The root EVs count from an even share of the starting pot.
    function _evText(evName) {
        return (_controllerNumber(evName) + _controllerNumber("resultStartingPot") / 2).toFixed(_evDecimals)
    }

    function _pillColor() {
        return page.selectedPlayer === "IP" ? theme.info : theme.actionBet
    }

    spacing: theme.spaceMd

    ResultsText {
        theme: header.theme
        type: header.type
        text: qsTranslate("ResultsPage", "Strategy View")
        font.pixelSize: header.type.headingLg
        font.weight: header.type.weightSemibold
        elide: Text.ElideNone
    }

    BoardDisplay {
        objectName: "strategyBoard"
        theme: header.theme
        boardText: header.page.treeBoardText
        compact: true
    }

    Rectangle {
        objectName: "toActPill"
        implicitWidth: pillText.implicitWidth + 2 * header.theme.spaceMd
        implicitHeight: header._pillHeight
        radius: height / 2
        color: header.theme.withOpacity(header._pillColor(), header._pillAlpha)
        border.color: header._pillColor()

        ResultsText {
            id: pillText

            anchors.centerIn: parent
            theme: header.theme
            type: header.type
            text: qsTranslate("ResultsPage", "%1 to act").arg(header.page.selectedPlayer)
            color: header._pillColor()
            font.pixelSize: header.type.labelMd
            font.weight: header.type.weightSemibold
        }
    }

    Item {
        Layout.fillWidth: true
    }

    SecondaryButton {
        objectName: "playModeButton"
        theme: header.theme
        enabled: header.page.hasResults
        text: header.page.playMode ? qsTranslate("ResultsPage", "Range view")
                                   : qsTranslate("ResultsPage", "Play vs solution")
        onClicked: header.page.togglePlayMode()
    }

    StatCard {
        objectName: "evOopCard"
        Layout.preferredWidth: header._statWidth
        theme: header.theme
        compact: true
        label: qsTranslate("ResultsPage", "EV (OOP)")
        value: header.page.hasResults ? header._evText("resultEvOop") : qsTranslate("ResultsPage", "—")
        accentColor: header.theme.success
    }

    StatCard {
        objectName: "evIpCard"
        Layout.preferredWidth: header._statWidth
        theme: header.theme
        compact: true
        label: qsTranslate("ResultsPage", "EV (IP)")
        value: header.page.hasResults ? header._evText("resultEvIp") : qsTranslate("ResultsPage", "—")
        accentColor: header.theme.info
    }

    StatCard {
        objectName: "exploitabilityCard"
        Layout.preferredWidth: header._statWidth
        theme: header.theme
        compact: true
        label: qsTranslate("ResultsPage", "Exploitability")
        value: header.page.hasResults
               ? header._controllerNumber("resultExploitability").toFixed(header._exploitabilityDecimals) : qsTranslate("ResultsPage", "—")
        accentColor: header.theme.gold
    }
}
