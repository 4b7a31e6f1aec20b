// The runs started from this page in this session, newest first, each with its status, start time and settings.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Kelvane

Card {
    id: card

    property var type: null
    property var solvePage: null
    property alias runList: runList
    // The model's own count: the list view learns of a new row only later.
    readonly property int rowCount: solvePage.runHistory.count

    readonly property int _titleIconSize: 16
    readonly property int _maxListHeight: 180
    readonly property int _listHeaderHeight: 42
    readonly property int _rowPitch: 42
    readonly property int _rowHeight: 34
    readonly property int _pillWidth: 90
    readonly property int _pillHeight: 22
    readonly property real _pillTintAlpha: 0.18

    function listHeight() {
        return Math.min(_maxListHeight, _listHeaderHeight + rowCount * _rowPitch)
    }

    function statusColor(status) {
        if (status === "Running")
            return theme.success
        return status === "Completed" ? theme.info : theme.danger
    }

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: card.theme.spaceMd

        RowLayout {
            Layout.fillWidth: true
            spacing: card.theme.spaceSm

            Icon {
                name: "clock"
                size: card._titleIconSize
                color: card.theme.textMuted
            }

            Text {
                Layout.fillWidth: true
                text: qsTranslate("SolvePage", "Recent Runs")
                color: card.theme.text
                font.family: card.theme.fontFamily
                font.pixelSize: card.type.headingSm
                font.weight: card.type.weightSemibold
            }

            SecondaryButton {
                objectName: "clearRunsButton"
                theme: card.theme
                text: qsTranslate("SolvePage", "Clear")
                enabled: card.rowCount > 0
                onClicked: card.solvePage.clearRuns()
            }
        }

        Text {
            objectName: "noRunsText"
            Layout.fillWidth: true
            visible: card.rowCount === 0
            text: qsTranslate("SolvePage", "No runs yet — click Start Solve to record a run here.")
            color: card.theme.textMuted
            font.family: card.theme.fontFamily
            font.pixelSize: card.type.bodySm
            wrapMode: Text.Wrap
        }

        ListView {
            id: runList

            objectName: "runList"
            Layout.fillWidth: true
            Layout.preferredHeight: card.listHeight()
            visible: card.rowCount > 0
            clip: true
            spacing: card._rowPitch - card._rowHeight
            model: card.solvePage.runHistory
            ScrollBar.vertical: ScrollBar {}

            delegate: RowLayout {
                id: row

                required property int runId
                required property string startedAt
                required property string status
                required property string summary

                width: ListView.view.width
                height: card._rowHeight
                spacing: card.theme.spaceMd

                Rectangle {
                    objectName: "statusPill"
                    Layout.preferredWidth: card._pillWidth
                    Layout.preferredHeight: card._pillHeight
                    radius: height / 2
                    color: card.theme.withOpacity(card.statusColor(row.status), card._pillTintAlpha)
                    border.color: card.statusColor(row.status)

                    // The status is stored and shown in English, as the run list records it.
                    Text {
                        objectName: "statusPillText"
                        anchors.centerIn: parent
                        text: row.status
                        color: card.statusColor(row.status)
                        font.family: card.theme.fontFamily
                        font.pixelSize: card.type.labelSm
                        font.weight: card.type.weightSemibold
                    }
                }

                Text {
                    text: row.startedAt
                    color: card.theme.textMuted
                    font.family: card.theme.fontMono
                    font.pixelSize: card.type.labelMd
                }

                Text {
                    Layout.fillWidth: true
                    text: row.summary
                    color: card.theme.text
                    font.family: card.theme.fontFamily
                    font.pixelSize: card.type.bodySm
                    elide: Text.ElideRight
                }
            }
        }
    }
}
