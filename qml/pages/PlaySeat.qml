// One seat at the play table: two hole cards, the seat's name and stack, and around the cards the bubble with the
// seat's last action and, when the hero acts here, the action buttons. The pills face the middle of the table.
import QtQuick
import Kelvane

Item {
    id: seat

    property var page: null
    property var theme: null
    property var type: null
    property string seatName: "OOP"
    property string card1: ""
    property string card2: ""
    property bool pillsBelow: true
    property bool dealer: false

    readonly property real _cardScale: 0.95
    readonly property real _pillAlpha: 0.92
    readonly property real _nameAlpha: 0.2
    readonly property int _dealerSize: 26
    readonly property int _gap: 8
    // "Oop" or "Ip", for the names of the seat's parts.
    readonly property string _key: seatName === "IP" ? "Ip" : "Oop"
    readonly property bool _hero: page.playSeatIsHero(seatName)
    readonly property bool _acting: page.playAwaitingUserAction && page.playActingSeat() === seatName
    readonly property bool _bubbleShown: page.playLastActionText !== "" && page.playLastActionActor === seatName
    // Where the action buttons may go: from the cards to the seat's right edge.
    readonly property real _actionsWidth: Math.max(0, width - cardsRow.x - cardsRow.width - 2 * _gap)

    signal actionChosen(int index)

    function _seatColor() {
        return seatName === "IP" ? theme.info : theme.actionBet
    }

    // An undealt card leaves its slot empty rather than showing a back.
    function _faceDown(card) {
        return !_hero && card !== ""
    }

    implicitHeight: cardsRow.height + _gap + pillsRow.height

    Row {
        id: cardsRow

        objectName: "playCards" + seat._key
        x: (seat.width - width) / 2
        y: seat.pillsBelow ? 0 : pillsRow.height + seat._gap
        spacing: seat._gap / 2

        Repeater {
            model: [seat.card1, seat.card2]

            PlayingCard {
                required property string modelData
                required property int index

                objectName: "playCard" + seat._key + index
                theme: seat.theme
                hoverable: false
                sizeScale: seat._cardScale
                faceDown: seat._faceDown(modelData)
                rank: modelData.charAt(0)
                suit: modelData.charAt(1)
            }
        }
    }

    Row {
        id: pillsRow

        x: (seat.width - width) / 2
        y: seat.pillsBelow ? cardsRow.height + seat._gap : 0
        spacing: seat._gap / 2

        Rectangle {
            objectName: "dealerButton"
            visible: seat.dealer
            anchors.verticalCenter: parent.verticalCenter
            width: seat._dealerSize
            height: seat._dealerSize
            radius: width / 2
            color: seat.theme.cardFace
            border.color: seat.theme.gold
            border.width: 2

            Text {
                anchors.centerIn: parent
                text: qsTranslate("ResultsPage", "D")
                color: seat.theme.suitSpades
                font.family: seat.theme.fontFamily
                font.pixelSize: seat.type.labelLg
                font.weight: seat.type.weightBold
            }
        }

        Chip {
            objectName: "playSeatName" + seat._key
            theme: seat.theme
            text: seat.seatName === "IP" ? qsTranslate("ResultsPage", "IP") : qsTranslate("ResultsPage", "OOP")
            tint: Qt.tint(seat.theme.withOpacity(seat.theme.surface, seat._pillAlpha),
                          seat.theme.withOpacity(seat._seatColor(), seat._nameAlpha))
            stroke: seat._seatColor()
            textColor: seat.theme.text
        }

        Chip {
            objectName: "playStack" + seat._key
            theme: seat.theme
            text: seat.page.playStackText(seat.seatName)
            tint: seat.theme.withOpacity(seat.theme.surface, seat._pillAlpha)
        }
    }

    Chip {
        objectName: "playBubble"
        visible: seat._bubbleShown
        anchors.right: cardsRow.left
        anchors.rightMargin: seat._gap * 2
        anchors.verticalCenter: cardsRow.verticalCenter
        theme: seat.theme
        text: seat.page.playLastActionText
        tint: seat.theme.withOpacity(seat.theme.surface, seat._pillAlpha)
        stroke: seat.theme.actionColor(seat.page.playLastActionText)
        textColor: seat.theme.text
    }

    // Several rows of buttons grow away from the table's edge, towards its middle.
    Flow {
        objectName: "playActions"
        visible: seat._acting
        x: cardsRow.x + cardsRow.width + seat._gap * 2
        width: seat._actionsWidth
        y: seat.pillsBelow ? cardsRow.y : cardsRow.y + cardsRow.height - height
        spacing: seat._gap / 2

        Repeater {
            model: seat._acting ? seat.page.playActionNames() : []

            PlayActionButton {
                required property string modelData
                required property int index

                objectName: "playActionButton"
                theme: seat.theme
                type: seat.type
                text: modelData
                onClicked: seat.actionChosen(index)
            }
        }
    }
}
