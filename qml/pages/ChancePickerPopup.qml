// Picks the turn or river card of a chance level: one row per suit with its 13 ranks. A card the solver folded
// into a suit-symmetric twin still plays, through the twin; a card with no action at all is disabled.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Kelvane

Popup {
    id: popup

    property var page: null
    property var theme: null
    property var type: null

    readonly property var _ranks: page._rankOrder.split("")
    readonly property var _suitSymbols: ({ s: "♠", h: "♥", d: "♦", c: "♣" })
    readonly property int _maxWidth: 640
    readonly property int _maxHeight: 520
    readonly property int _minSize: 240
    readonly property int _pageMargin: 40
    readonly property int _suitTileSize: 28
    readonly property real _cardScale: 1.2
    readonly property real _dimAlpha: 0.6

    function _cardIndex(card) {
        return page._chanceCardIndexForSelection(card)
    }

    function _pick(card) {
        const action = _cardIndex(card)
        if (action >= 0)
            page.chooseChanceCard(action, card)
    }

    parent: page
    modal: true
    focus: true
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside
    width: Math.max(_minSize, Math.min(_maxWidth, page.width - _pageMargin, implicitWidth))
    height: Math.max(_minSize, Math.min(_maxHeight, page.height - _pageMargin, implicitHeight))
    x: (page.width - width) / 2
    y: (page.height - height) / 2
    padding: theme.spaceLg

    Overlay.modal: Rectangle {
        color: Qt.rgba(0, 0, 0, popup._dimAlpha)
    }

    background: Rectangle {
        color: popup.theme.surface
        radius: popup.theme.radiusLg
        border.color: popup.theme.stroke
        border.width: 1
    }

    contentItem: ColumnLayout {
        spacing: popup.theme.spaceMd

        RowLayout {
            Layout.fillWidth: true
            spacing: popup.theme.spaceSm

            ResultsText {
                objectName: "chancePickerTitle"
                Layout.fillWidth: true
                theme: popup.theme
                type: popup.type
                text: popup.page.chancePickerTitle
                font.pixelSize: popup.type.headingSm
                font.weight: popup.type.weightSemibold
            }

            SecondaryButton {
                objectName: "chanceRandomButton"
                theme: popup.theme
                text: qsTranslate("ResultsPage", "Random")
                enabled: popup.page.chancePickerAvailableCardIndices.length > 0
                onClicked: popup.page.chooseChanceCardRandom()
            }

            SecondaryButton {
                objectName: "chanceCloseButton"
                theme: popup.theme
                text: qsTranslate("ResultsPage", "✕")
                onClicked: popup.close()
            }
        }

        Flickable {
            Layout.fillWidth: true
            Layout.fillHeight: true
            implicitWidth: rows.implicitWidth
            implicitHeight: rows.implicitHeight
            clip: true
            contentWidth: rows.implicitWidth
            contentHeight: rows.implicitHeight
            boundsBehavior: Flickable.StopAtBounds

            ColumnLayout {
                id: rows

                spacing: popup.theme.spaceSm

                Repeater {
                    model: popup.page._suitOrder

                    RowLayout {
                        id: suitRow

                        required property string modelData

                        spacing: popup.theme.spaceXs

                        Rectangle {
                            implicitWidth: popup._suitTileSize
                            implicitHeight: popup._suitTileSize
                            radius: popup.theme.radiusXs
                            color: popup.theme.surface2
                            border.color: popup.theme.stroke

                            ResultsText {
                                anchors.centerIn: parent
                                theme: popup.theme
                                type: popup.type
                                text: popup._suitSymbols[suitRow.modelData]
                                color: suitRow.modelData === "s" && popup.theme.dark
                                       ? popup.theme.text : popup.theme.suitColor(suitRow.modelData)
                                font.pixelSize: popup.type.headingSm
                            }
                        }

                        Repeater {
                            model: popup._ranks

                            PlayingCard {
                                required property string modelData
                                readonly property string _card: modelData + suitRow.modelData

                                objectName: "chanceCard_" + _card
                                theme: popup.theme
                                mini: true
                                sizeScale: popup._cardScale
                                rank: modelData
                                suit: suitRow.modelData
                                disabled: popup._cardIndex(_card) < 0
                                onClicked: popup._pick(_card)
                            }
                        }
                    }
                }
            }
        }
    }
}
