// The navigation bar: five tabs that open only when their page has something to show, and a chip with the
// solve status and its progress.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import "SolveProgress.js" as SolveProgress

Rectangle {
    id: bar

    property var theme: null
    property var type: null
    property var controller: null
    property int currentIndex: 0
    property var tabTitles: []
    property bool projectEnabled: false
    property bool canSolve: false
    // The Solve page is showing during a run: every other tab is closed.
    property bool lockOnSolve: false
    property int maxIterations: 0
    property real targetExploitability: 0.0
    property string pageTitle: ""
    property string pageSubtitle: ""

    readonly property bool running: _controllerValue("running", false) === true
    readonly property string statusText: String(_controllerValue("statusText", ""))
    readonly property bool isFinalizing: SolveProgress.isFinalizing(running, statusText)
    readonly property int currentIteration: _currentIteration()
    readonly property int progressWheelTotalIterations: _wheelTotal()
    readonly property int progressPercent: Math.round(_progressValue() * 100)
    readonly property string statusLabel: isFinalizing ? qsTr("Finalizing") : running ? qsTr("Solving") : qsTr("Ready")
    readonly property bool statusActive: running || canSolve

    // The finishing stages name no iteration, so the last one seen is held through them.
    property int _lastIterFromStatusText: 0

    readonly property var _tabIcons: ["home", "clipboard", "bolt", "chart", "gear"]
    readonly property var _disabledTips: ["",
        qsTr("Start a new project (or load one) from Home to enable Project"),
        qsTr("Fill board, ranges, and sizings to enable Solve"),
        qsTr("Run a solve to enable Results"),
        ""]
    readonly property int _settingsIndex: 4
    readonly property int _barHeight: 60
    readonly property int _tabHeight: 40
    readonly property int _tabIconSize: 16
    readonly property int _dividerHeight: 22
    readonly property int _dividerGap: 14
    readonly property int _chipHeight: 32
    readonly property int _dotSize: 8
    readonly property real _disabledTabOpacity: 0.45
    readonly property real _activeChipFillAlpha: 0.15
    readonly property real _dotDimOpacity: 0.4
    readonly property int _dotHalfCycle: 500

    signal navigate(int index)

    function _controllerValue(name, fallback) {
        return controller && controller[name] !== undefined ? controller[name] : fallback
    }

    function _currentIteration() {
        if (!running)
            return 0
        return SolveProgress.runningIteration(statusText, isFinalizing, _lastIterFromStatusText,
                                              _controllerValue("progress", 0), maxIterations)
    }

    function _wheelTotal() {
        return SolveProgress.wheelTotal(maxIterations, targetExploitability)
    }

    function _progressValue() {
        return running ? SolveProgress.wheelFraction(currentIteration, progressWheelTotalIterations) : 0
    }

    function isTabEnabled(index) {
        if (lockOnSolve)
            return index === 2
        switch (index) {
        case 1:
            return projectEnabled
        case 2:
            return canSolve
        case 3:
            return Number(_controllerValue("resultIterations", 0)) > 0
        }
        return true
    }

    function _tabBackground(index) {
        return index === currentIndex ? theme.surface : "transparent"
    }

    function _tabBorder(index) {
        return index === currentIndex ? theme.stroke : "transparent"
    }

    function _tabInk(index) {
        return index === currentIndex ? theme.text : theme.textMuted
    }

    onStatusTextChanged: {
        const iteration = SolveProgress.parseIteration(statusText)
        if (iteration > 0)
            _lastIterFromStatusText = iteration
    }
    onRunningChanged: {
        if (!running)
            _lastIterFromStatusText = 0
    }

    implicitHeight: _barHeight
    color: theme.bg1

    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: 1
        color: bar.theme.stroke
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: bar.theme.spaceLg
        anchors.rightMargin: bar.theme.spaceLg
        spacing: bar.theme.spaceXs

        Repeater {
            model: bar.tabTitles.length

            delegate: RowLayout {
                id: slot

                required property int index
                readonly property bool available: bar.isTabEnabled(index)

                spacing: 0

                Rectangle {
                    objectName: visible ? "tabDivider" : ""
                    visible: slot.index === bar._settingsIndex
                    Layout.leftMargin: bar._dividerGap
                    Layout.rightMargin: bar._dividerGap
                    implicitWidth: 1
                    implicitHeight: bar._dividerHeight
                    color: bar.theme.stroke
                }

                Rectangle {
                    id: tab

                    objectName: "tab" + slot.index
                    implicitWidth: tabContent.implicitWidth + 2 * bar.theme.spaceMd
                    implicitHeight: bar._tabHeight
                    radius: bar.theme.radiusSm
                    color: bar._tabBackground(slot.index)
                    border.color: bar._tabBorder(slot.index)
                    opacity: slot.available ? 1.0 : bar._disabledTabOpacity

                    Rectangle {
                        anchors.fill: parent
                        radius: parent.radius
                        color: bar.theme.surfaceHover
                        visible: tabArea.containsMouse && slot.available && slot.index !== bar.currentIndex
                    }

                    Row {
                        id: tabContent

                        anchors.centerIn: parent
                        spacing: bar.theme.spaceSm

                        Icon {
                            anchors.verticalCenter: parent.verticalCenter
                            name: bar._tabIcons[slot.index]
                            size: bar._tabIconSize
                            color: bar._tabInk(slot.index)
                        }

                        Text {
                            anchors.verticalCenter: parent.verticalCenter
                            text: bar.tabTitles[slot.index]
                            color: bar._tabInk(slot.index)
                            font.family: bar.theme.fontFamily
                            font.pixelSize: bar.type.labelLg
                            font.weight: slot.index === bar.currentIndex ? bar.type.weightSemibold
                                                                         : bar.type.weightMedium
                        }
                    }

                    ToolTip {
                        objectName: "tabToolTip"
                        text: bar._disabledTips[slot.index]
                        visible: tabArea.containsMouse && !slot.available && text !== ""
                        delay: bar.theme.durationNormal
                    }

                    // Stays enabled on a closed tab, so that hovering it can still explain why.
                    MouseArea {
                        id: tabArea

                        anchors.fill: parent
                        hoverEnabled: true
                        cursorShape: slot.available ? Qt.PointingHandCursor : Qt.ArrowCursor
                        onClicked: {
                            if (slot.available)
                                bar.navigate(slot.index)
                        }
                    }
                }
            }
        }

        Item {
            Layout.fillWidth: true
        }

        Rectangle {
            id: chip

            objectName: "statusChip"
            implicitWidth: chipRow.implicitWidth + 2 * bar.theme.spaceMd
            implicitHeight: bar._chipHeight
            radius: height / 2
            color: bar.statusActive ? bar.theme.withOpacity(bar.theme.success, bar._activeChipFillAlpha)
                                    : bar.theme.surface2
            border.color: bar.statusActive ? bar.theme.success : bar.theme.stroke

            Row {
                id: chipRow

                anchors.centerIn: parent
                spacing: bar.theme.spaceSm

                Rectangle {
                    id: dot

                    objectName: "statusDot"
                    anchors.verticalCenter: parent.verticalCenter
                    width: bar._dotSize
                    height: bar._dotSize
                    radius: width / 2
                    color: bar.statusActive ? bar.theme.success : bar.theme.textFaint

                    SequentialAnimation on opacity {
                        running: bar.running
                        loops: Animation.Infinite
                        alwaysRunToEnd: true

                        NumberAnimation { from: 1.0; to: bar._dotDimOpacity; duration: bar._dotHalfCycle }
                        NumberAnimation { from: bar._dotDimOpacity; to: 1.0; duration: bar._dotHalfCycle }
                    }
                }

                Text {
                    objectName: "statusLabel"
                    anchors.verticalCenter: parent.verticalCenter
                    text: bar.statusLabel
                    color: bar.statusActive ? bar.theme.success : bar.theme.textMuted
                    font.family: bar.theme.fontFamily
                    font.pixelSize: bar.type.labelLg
                    font.weight: bar.type.weightMedium
                }

                Text {
                    objectName: "statusPercent"
                    anchors.verticalCenter: parent.verticalCenter
                    visible: bar.running
                    text: qsTr("%1%").arg(bar.progressPercent)
                    color: bar.theme.success
                    font.family: bar.theme.fontFamily
                    font.pixelSize: bar.type.labelLg
                    font.weight: bar.type.weightBold
                }
            }
        }
    }
}
