// "Hand details" of the selected log row: each street's cards and actions, both hands, and how the hand ended.
import QtQuick
import QtQuick.Layouts
import Kelvane

ResultsPanel {
    id: panel

    property var page: null

    readonly property int _columnMinWidth: 170
    readonly property int _closeHeight: 30
    readonly property var _details: page.playSelectedDetails ? page.playSelectedDetails : ({})

    function _text(key) {
        const value = _details[key]
        return value === undefined || value === null ? "" : String(value)
    }

    function _list(key) {
        const value = _details[key]
        return value ? value : []
    }

    objectName: "playHandDetails"
    title: qsTranslate("ResultsPage", "Hand details")
    headerExtras: [
        SecondaryButton {
            objectName: "playDetailsClose"
            implicitHeight: panel._closeHeight
            theme: panel.theme
            text: qsTranslate("ResultsPage", "Close")
            onClicked: panel.page.selectPlayLog(-1)
        }
    ]

    RowLayout {
        Layout.fillWidth: true
        Layout.fillHeight: true
        spacing: panel.theme.spaceMd

        PlayStreetDetails {
            objectName: "detailsFlop"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: panel._columnMinWidth
            Layout.minimumWidth: panel._columnMinWidth
            theme: panel.theme
            type: panel.type
            title: qsTranslate("ResultsPage", "Flop")
            cardsText: panel._text("flopBoard")
            actions: panel._list("flopActions")
        }

        PlayDetailsRule { theme: panel.theme }

        PlayStreetDetails {
            objectName: "detailsTurn"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: panel._columnMinWidth
            Layout.minimumWidth: panel._columnMinWidth
            theme: panel.theme
            type: panel.type
            title: qsTranslate("ResultsPage", "Turn")
            cardsText: panel._text("turnCard")
            actions: panel._list("turnActions")
        }

        PlayDetailsRule { theme: panel.theme }

        PlayStreetDetails {
            objectName: "detailsRiver"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: panel._columnMinWidth
            Layout.minimumWidth: panel._columnMinWidth
            theme: panel.theme
            type: panel.type
            title: qsTranslate("ResultsPage", "River")
            cardsText: panel._text("riverCard")
            actions: panel._list("riverActions")
        }

        PlayDetailsRule { theme: panel.theme }

        PlayDetailsColumn {
            objectName: "detailsHands"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: panel._columnMinWidth
            Layout.minimumWidth: panel._columnMinWidth
            theme: panel.theme
            type: panel.type
            title: qsTranslate("ResultsPage", "Hands")

            PlayDetailsHand {
                objectName: "detailsHandIp"
                theme: panel.theme
                type: panel.type
                label: qsTranslate("ResultsPage", "IP")
                cardsText: panel._text("ip")
            }

            PlayDetailsHand {
                objectName: "detailsHandOop"
                theme: panel.theme
                type: panel.type
                label: qsTranslate("ResultsPage", "OOP")
                cardsText: panel._text("oop")
            }

            Item {
                Layout.fillHeight: true
            }
        }

        PlayDetailsRule { theme: panel.theme }

        PlayDetailsColumn {
            objectName: "detailsSummary"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: panel._columnMinWidth
            Layout.minimumWidth: panel._columnMinWidth
            theme: panel.theme
            type: panel.type
            title: qsTranslate("ResultsPage", "Summary")

            PlayDetailsLines {
                objectName: "summaryLines"
                theme: panel.theme
                type: panel.type
                lines: panel._list("summaryLines")
            }
        }
    }
}
