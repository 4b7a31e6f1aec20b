// Play mode's area under the action frequencies: the heading with the drill button, the table beside the hand
// log, and the selected hand's details below them.
import QtQuick
import QtQuick.Layouts
import Kelvane

ColumnLayout {
    id: panel

    property var page: null
    property var theme: null
    property var type: null

    readonly property int _logWidth: 300
    readonly property int _tableMinHeight: 460
    readonly property int _detailsHeight: 260
    readonly property bool _handRunning: page.playSessionStarted && !page.playHandComplete

    function _subtitle() {
        if (!page.playSessionStarted)
            return qsTranslate("ResultsPage", "Choose a role to start")
        return qsTranslate("ResultsPage", "Role: %1").arg(page.playRole)
    }

    function _toggleDrill() {
        if (page.playDrillMode)
            page.stopDrillSpot()
        else
            page.startDrillSpot()
    }

    spacing: theme.spaceMd

    // As high as the drill button even while it is hidden, so that the table does not move when it appears.
    RowLayout {
        objectName: "playHeading"
        Layout.fillWidth: true
        Layout.minimumHeight: drillButton.implicitHeight
        spacing: panel.theme.spaceMd

        ResultsText {
            theme: panel.theme
            type: panel.type
            text: qsTranslate("ResultsPage", "Play vs. Solution")
            font.pixelSize: panel.type.headingSm
            font.weight: panel.type.weightSemibold
            elide: Text.ElideNone
        }

        ResultsText {
            objectName: "playSubtitle"
            Layout.fillWidth: true
            theme: panel.theme
            type: panel.type
            text: panel._subtitle()
            color: panel.theme.textMuted
        }

        SecondaryButton {
            id: drillButton

            objectName: "drillButton"
            visible: panel._handRunning || panel.page.playDrillMode
            enabled: panel.page.playDrillMode || panel.page.playDrillAvailable()
            theme: panel.theme
            text: panel.page.playDrillMode ? qsTranslate("ResultsPage", "Stop drill")
                                           : qsTranslate("ResultsPage", "Drill spot")
            onClicked: panel._toggleDrill()
        }
    }

    RowLayout {
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.minimumHeight: panel._tableMinHeight
        spacing: panel.theme.spaceMd

        PlayTable {
            objectName: "playTable"
            Layout.fillWidth: true
            Layout.fillHeight: true
            page: panel.page
            theme: panel.theme
            type: panel.type
        }

        PlayHandLog {
            objectName: "playHandLog"
            Layout.preferredWidth: panel._logWidth
            Layout.fillHeight: true
            page: panel.page
            theme: panel.theme
            type: panel.type
        }
    }

    PlayHandDetailsPanel {
        visible: panel.page.playSelectedLogIndex >= 0
        Layout.fillWidth: true
        Layout.preferredHeight: panel._detailsHeight
        page: panel.page
        theme: panel.theme
        type: panel.type
    }
}
