// The "Strategy View" panel: the current node's board, player and solve figures on top, its action frequencies,
// and below the strategy by hand beside the node facts, node locking, buckets and the combo list.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Kelvane

Rectangle {
    id: view

    property var page: null
    property var theme: null
    property var type: null

    readonly property int _sideColumnWidth: 340
    readonly property int _mainRowMinHeight: 560
    readonly property int _playMinHeight: 780

    color: theme.bg0

    ScrollView {
        id: scroller

        anchors.fill: parent
        contentWidth: availableWidth
        clip: true

        ColumnLayout {
            width: scroller.availableWidth
            spacing: view.theme.spaceMd

            ResultsHeader {
                Layout.fillWidth: true
                Layout.topMargin: view.theme.spaceMd
                Layout.leftMargin: view.theme.spaceMd
                Layout.rightMargin: view.theme.spaceMd
                page: view.page
                theme: view.theme
                type: view.type
            }

            ResultsPanel {
                objectName: "actionFrequencies"
                Layout.fillWidth: true
                Layout.leftMargin: view.theme.spaceMd
                Layout.rightMargin: view.theme.spaceMd
                theme: view.theme
                type: view.type
                title: qsTranslate("ResultsPage", "Action Frequencies")

                ActionBar {
                    objectName: "frequencyBar"
                    Layout.fillWidth: true
                    theme: view.theme
                    actions: view.page.currentActions
                }
            }

            // The table replaces the strategy panels while playing against the solution.
            PlayPanel {
                objectName: "playPanel"
                visible: view.page.playMode
                Layout.fillWidth: true
                Layout.leftMargin: view.theme.spaceMd
                Layout.rightMargin: view.theme.spaceMd
                Layout.bottomMargin: view.theme.spaceMd
                Layout.preferredHeight: Math.max(view._playMinHeight, scroller.availableHeight - y - view.theme.spaceMd)
                page: view.page
                theme: view.theme
                type: view.type
            }

            // The lists take the rest of the window's height, and scroll inside.
            RowLayout {
                id: mainRow

                visible: !view.page.playMode
                Layout.fillWidth: true
                Layout.leftMargin: view.theme.spaceMd
                Layout.rightMargin: view.theme.spaceMd
                Layout.bottomMargin: view.theme.spaceMd
                Layout.preferredHeight: Math.max(view._mainRowMinHeight, matrixCard.implicitHeight,
                                                 scroller.availableHeight - mainRow.y - view.theme.spaceMd)
                spacing: view.theme.spaceMd

                StrategyMatrixCard {
                    id: matrixCard

                    Layout.alignment: Qt.AlignTop
                    page: view.page
                    theme: view.theme
                    type: view.type
                }

                ColumnLayout {
                    Layout.preferredWidth: view._sideColumnWidth
                    Layout.fillHeight: true
                    spacing: view.theme.spaceMd

                    NodeFactsBox {
                        Layout.fillWidth: true
                        page: view.page
                        theme: view.theme
                        type: view.type
                    }

                    NodeLockPanel {
                        objectName: "nodeLockPanel"
                        visible: view.page.nodeLockMode
                        Layout.fillWidth: true
                        page: view.page
                        theme: view.theme
                        type: view.type
                    }

                    BucketsPanel {
                        Layout.fillWidth: true
                        Layout.fillHeight: true
                        page: view.page
                        theme: view.theme
                        type: view.type
                    }
                }

                HandDetailsPanel {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    page: view.page
                    theme: view.theme
                    type: view.type
                }
            }
        }
    }
}
