// The non-modal "Select card" picker for one board slot. Cards already on the board cannot be picked, the one in
// this slot included; "Clear card" empties this slot and every later one.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Kelvane

SetupDialog {
    id: picker

    property int editingCardIndex: -1
    property var usedCards: []

    readonly property int _turnIndex: 3
    readonly property int _riverIndex: 4

    signal cardPicked(string card)
    signal clearRequested()

    function _subHeading() {
        if (editingCardIndex === _riverIndex)
            return qsTranslate("ProjectPage", "River card")
        return editingCardIndex === _turnIndex ? qsTranslate("ProjectPage", "Turn card")
                                               : qsTranslate("ProjectPage", "Flop card")
    }

    title: qsTranslate("ProjectPage", "Select card")
    modal: false
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside
    footerButtons: [
        SecondaryButton {
            objectName: "clearCardButton"
            theme: picker.theme
            text: qsTranslate("ProjectPage", "Clear card")
            enabled: picker.editingCardIndex >= 0
            onClicked: picker.clearRequested()
        },
        SecondaryButton {
            objectName: "cancelCardButton"
            theme: picker.theme
            text: qsTranslate("ProjectPage", "Cancel")
            onClicked: picker.close()
        }
    ]

    ColumnLayout {
        spacing: picker.theme.spaceSm

        Text {
            objectName: "pickerSubHeading"
            text: picker._subHeading()
            color: picker.theme.textMuted
            font.family: picker.theme.fontFamily
            font.pixelSize: picker.type.labelLg
            font.weight: picker.type.weightMedium
        }

        CardPicker {
            objectName: "boardCardPicker"
            theme: picker.theme
            usedCards: picker.usedCards
            onCardSelected: card => picker.cardPicked(card)
        }
    }
}
