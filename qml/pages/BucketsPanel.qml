// "Buckets": the current player's combos by hand category, each with its share of the combos and its strategy;
// a click filters the matrix and the combo list to that category.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Kelvane
import "ListRows.js" as ListRows

ResultsPanel {
    id: panel

    property var page: null

    readonly property int _rowHeight: 44
    readonly property int _comboDecimals: 1

    title: qsTranslate("ResultsPage", "Buckets")
    badge: qsTranslate("ResultsPage", "%1 shown").arg(page.currentBuckets.length)

    Component.onCompleted: ListRows.resize(rows, page.currentBuckets.length)

    ListModel {
        id: rows
    }

    Connections {
        target: panel.page

        function onCurrentBucketsChanged() {
            ListRows.resize(rows, panel.page.currentBuckets.length)
        }

        // The rows outlive the node, but a new node's list starts at its top.
        function onCurrentNodeIndexChanged() {
            list.positionViewAtBeginning()
        }
    }

    ListView {
        id: list

        objectName: "bucketList"
        Layout.fillWidth: true
        Layout.fillHeight: true
        clip: true
        spacing: panel.theme.spaceXs
        // Rows that follow the list's length, so that a node change refills them.
        model: rows
        reuseItems: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}

        delegate: Rectangle {
            id: row

            required property int index
            readonly property var modelData: ListRows.entryAt(panel.page.currentBuckets, index,
                                                              ({name: "", combos: 0}))
            readonly property bool _selected: panel.page.selectedBucket === modelData.name

            objectName: "bucket_" + modelData.name
            width: list.width
            height: panel._rowHeight
            radius: panel.theme.radiusSm
            color: _selected ? panel.theme.surface3 : (rowArea.containsMouse ? panel.theme.surfaceHover : "transparent")

            ColumnLayout {
                anchors.fill: parent
                anchors.margins: panel.theme.spaceXs
                spacing: 2

                RowLayout {
                    Layout.fillWidth: true

                    ResultsText {
                        Layout.fillWidth: true
                        theme: panel.theme
                        type: panel.type
                        text: row.modelData.displayName ? row.modelData.displayName : row.modelData.name
                        font.weight: panel.type.weightMedium
                    }

                    ResultsText {
                        theme: panel.theme
                        type: panel.type
                        text: Number(row.modelData.combos).toFixed(panel._comboDecimals) + " combos"
                        color: panel.theme.textMuted
                        font.pixelSize: panel.type.labelSm
                    }
                }

                ActionBar {
                    Layout.fillWidth: true
                    theme: panel.theme
                    showLabels: false
                    actions: panel.page._handActionsForProbs(row.modelData.actionProbs)
                }
            }

            MouseArea {
                id: rowArea

                anchors.fill: parent
                hoverEnabled: true
                cursorShape: Qt.PointingHandCursor
                onClicked: panel.page.toggleBucketFilter(row.modelData.name)
            }
        }
    }
}
