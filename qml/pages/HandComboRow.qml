// One combo of the hand list: its two cards, its EV for each action in that action's colour, and its strategy.
import QtQuick
import QtQuick.Layouts
import Kelvane

Rectangle {
    id: row

    property var page: null
    property var theme: null
    property var type: null
    property var combo: ({})

    readonly property int _evDecimals: 2
    readonly property int _barWidth: 140
    readonly property real _cardScale: 0.8

    function _evLines() {
        const evs = combo.actionEvs
        const lines = []
        if (!evs || evs.length === 0)
            return [{text: _format(combo.ev), color: theme.text}]
        for (let i = 0; i < evs.length; ++i) {
            const action = page._safeActionAt(page.currentActions, i)
            const name = action ? String(action.name) : ""
            lines.push({text: (name ? name + " " : "") + _format(evs[i]),
                        color: theme.actionColor(name ? name : (action ? action.actionType : ""))})
        }
        return lines
    }

    function _format(value) {
        const number = Number(value)
        return isFinite(number) ? number.toFixed(_evDecimals) : qsTranslate("ResultsPage", "—")
    }

    function _card(text, part) {
        return String(text).charAt(part)
    }

    implicitHeight: content.implicitHeight + 2 * theme.spaceXs
    radius: theme.radiusSm
    color: theme.surface2

    RowLayout {
        id: content

        anchors.fill: parent
        anchors.margins: row.theme.spaceXs
        spacing: row.theme.spaceSm

        Row {
            Layout.alignment: Qt.AlignVCenter
            spacing: 2

            Repeater {
                model: [row.combo.c1, row.combo.c2]

                PlayingCard {
                    required property var modelData

                    theme: row.theme
                    mini: true
                    hoverable: false
                    sizeScale: row._cardScale
                    rank: row._card(modelData, 0)
                    suit: row._card(modelData, 1)
                }
            }
        }

        ResultsText {
            Layout.alignment: Qt.AlignTop
            theme: row.theme
            type: row.type
            text: qsTranslate("ResultsPage", "EV:")
            color: row.theme.textMuted
            font.pixelSize: row.type.labelMd
        }

        Column {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignVCenter

            Repeater {
                model: row._evLines()

                ResultsText {
                    required property var modelData

                    width: parent.width
                    theme: row.theme
                    type: row.type
                    text: modelData.text
                    color: modelData.color
                    font.family: row.theme.fontMono
                    font.pixelSize: row.type.labelMd
                }
            }
        }

        ActionBar {
            Layout.preferredWidth: row._barWidth
            Layout.alignment: Qt.AlignVCenter
            theme: row.theme
            showLabels: false
            actions: row.page._handActionsForProbs(row.combo.actionProbs)
        }
    }
}
