// The Setup page: board, ranges, stacks and the bet and raise sizes of both players.
import QtQuick

Item {
    id: page

    property var theme: null
    property var type: null
    property var controller: null
    property bool canSolve: false

    property string boardText: ""
    property string oopRangeText: ""
    property string ipRangeText: ""
    property string betSizesText: ""
    property int maxIterations: 0
    property int startingPot: 0
    property int effectiveStack: 0
    property string startingStreet: "flop"
    property real targetExploitability: 0.0
    property real rakePercent: 0.0
    property int rakeCap: 0

    property string oopFlopBetSizesText: ""
    property string oopTurnBetSizesText: ""
    property string oopRiverBetSizesText: ""
    property string oopFlopRaiseSizesText: ""
    property string oopTurnRaiseSizesText: ""
    property string oopRiverRaiseSizesText: ""
    property bool oopFlopAddAllIn: false
    property bool oopTurnAddAllIn: false
    property bool oopRiverAddAllIn: false
    property bool oopFlopDontDonk: false
    property bool oopTurnDontDonk: false
    property bool oopRiverDontDonk: false

    property string ipFlopBetSizesText: ""
    property string ipTurnBetSizesText: ""
    property string ipRiverBetSizesText: ""
    property string ipFlopRaiseSizesText: ""
    property string ipTurnRaiseSizesText: ""
    property string ipRiverRaiseSizesText: ""
    property bool ipFlopAddAllIn: false
    property bool ipTurnAddAllIn: false
    property bool ipRiverAddAllIn: false

    property bool oopAddAllInIfJamLtEnabled: false
    property real oopAddAllInIfJamLtPct: 0.0
    property bool ipAddAllInIfJamLtEnabled: false
    property real ipAddAllInIfJamLtPct: 0.0

    // Nothing on this page needs more than the window's own minimum.
    readonly property int recommendedWindowWidth: 0

    signal goToSolve()

    function openImportRangeDialog(side) {
    }

    Text {
        anchors.centerIn: parent
        text: qsTr("Setup")
        color: page.theme.textMuted
        font.family: page.theme.fontFamily
        font.pixelSize: page.type.displaySm
        font.weight: page.type.weightSemibold
    }
}
