// The "Game Tree" panel: the breadcrumb of the walked path and the path itself, one group of rows per level.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Kelvane

Rectangle {
    id: panel

    property var page: null
    property var theme: null
    property var type: null

    color: theme.bg1

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: panel.theme.spaceMd
        spacing: panel.theme.spaceSm

        ResultsText {
            theme: panel.theme
            type: panel.type
            text: qsTranslate("ResultsPage", "Game Tree")
            font.pixelSize: panel.type.headingSm
            font.weight: panel.type.weightSemibold
        }

        Flow {
            objectName: "breadcrumbs"
            Layout.fillWidth: true
            spacing: panel.theme.spaceXs

            Repeater {
                model: panel.page.nodePath

                ResultsText {
                    required property int index
                    required property string modelData

                    theme: panel.theme
                    type: panel.type
                    text: (index > 0 ? "› " : "") + modelData
                    color: crumbArea.containsMouse ? panel.theme.accent : panel.theme.textMuted
                    font.pixelSize: panel.type.labelMd

                    MouseArea {
                        id: crumbArea

                        anchors.fill: parent
                        hoverEnabled: true
                        cursorShape: Qt.PointingHandCursor
                        // While playing, the tree follows the hand and takes no clicks.
                        enabled: !panel.page.playMode
                        onClicked: panel.page.navigateToBreadcrumb(parent.index)
                    }
                }
            }
        }

        ListView {
            id: levels

            objectName: "treeLevels"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            spacing: panel.theme.spaceXs
            model: panel.page.treeLevels
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar {}
            onCountChanged: Qt.callLater(positionViewAtEnd)

            delegate: ResultsTreeLevel {
                required property int index
                required property int nodeIndex
                required property int selectedActionIndex

                width: levels.width
                enabled: !panel.page.playMode
                page: panel.page
                theme: panel.theme
                type: panel.type
                level: index
                levelNode: nodeIndex
                selectedAction: selectedActionIndex
                isLeaf: index === levels.count - 1
            }
        }
    }
}
