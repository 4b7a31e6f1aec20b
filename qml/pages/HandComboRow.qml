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

    // One line per action EV, or a single line with the plain EV when the combo has none: only the count makes
    // lines, so that the next combo with as many actions refills them in place.
    function _evLineCount() {
        const evs = combo.actionEvs
        return evs && evs.length > 0 ? evs.length : 1
    }

    function _evLine(i) {
        const evs = combo.actionEvs
        if (!evs || evs.length === 0)
            return {text: _format(combo.ev), color: theme.text}
        const action = page._safeActionAt(page.currentActions, i)
        const name = action ? String(action.name) : ""
        return {text: (name ? name + " " : "") + _format(evs[i]),
                color: theme.actionColor(name ? name : (action ? action.actionType : ""))}
    }

    function _format(value) {
        const number = Number(value)
        return isFinite(number) ? number.toFixed(_evDecimals) : qsTranslate("ResultsPage", "—")
    }

    function _card(text, part) {
        return text ? String(text).charAt(part) : ""
    }

    implicitHeight: content.implicitHeight + 2 * theme.spaceXs
    radius: theme.radiusSm
    color: theme.surface2

    RowLayout {
        id: content

        anchors.fill: parent
        anchors.margins: row.theme.spaceXs
        spacing: row.theme.spaceSm

        // Two fixed cards rather than a repeater over a fresh pair, which would rebuild them for every combo.
        Row {
            Layout.alignment: Qt.AlignVCenter
            spacing: 2

            MiniCard {
                objectName: "firstCard"
                theme: row.theme
                sizeScale: row._cardScale
                rank: row._card(row.combo.c1, 0)
                suit: row._card(row.combo.c1, 1)
            }

            MiniCard {
                objectName: "secondCard"
                theme: row.theme
                sizeScale: row._cardScale
                rank: row._card(row.combo.c2, 0)
                suit: row._card(row.combo.c2, 1)
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
            objectName: "evLines"
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignVCenter

            Repeater {
                model: row._evLineCount()

                ResultsText {
                    required property int index
                    readonly property var _line: row._evLine(index)

                    width: parent.width
                    theme: row.theme
                    type: row.type
                    text: _line.text
                    color: _line.color
                    font.family: row.theme.fontMono
                    font.pixelSize: row.type.labelMd
                }
            }
        }

        ActionBar {
            objectName: "comboStrategy"
            Layout.preferredWidth: row._barWidth
            Layout.alignment: Qt.AlignVCenter
            theme: row.theme
            showLabels: false
            actions: row.page._handActionsForProbs(row.combo.actionProbs)
        }
    }
}
