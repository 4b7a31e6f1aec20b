// One seat's hole cards in the hand details: the seat's name and its two mini cards.
import QtQuick
import QtQuick.Layouts
import Kelvane

RowLayout {
    id: hand

    property var theme: null
    property var type: null
    property string label: ""
    property string cardsText: ""

    readonly property int _labelWidth: 36
    readonly property real _cardScale: 0.85

    spacing: theme.spaceSm

    ResultsText {
        Layout.preferredWidth: hand._labelWidth
        theme: hand.theme
        type: hand.type
        text: hand.label
        font.weight: hand.type.weightSemibold
    }

    PlayMiniCards {
        objectName: "handCards"
        theme: hand.theme
        cardsText: hand.cardsText
        cardScale: hand._cardScale
    }
}
