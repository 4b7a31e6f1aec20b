// One player's range card on the Setup page: the matrix to paint the range on, the place of the range library
// beside it, the weight that a newly painted hand gets, and the range text itself. The text is the card's only
// output: every change goes out through rangeTextEdited, and the page writes it back into rangeText.
import QtQuick
import Kelvane
import QtQuick.Controls
import QtQuick.Layouts
import "RangeText.js" as RangeText

Card {
    id: root

    property var type: null
    // "oop" or "ip".
    property string player: "oop"
    property string rangeText: ""
    property real clickWeightPct: _fullWeightPct
    property alias matrix: matrix
    property alias librarySlot: librarySlot

    readonly property Theme _darkTheme: Theme {}
    readonly property var _theme: theme ? theme : _darkTheme
    readonly property Typography _defaultType: Typography {}
    readonly property var _type: type ? type : _defaultType
    readonly property real _fullWeightPct: 100.0
    readonly property int _weightDecimals: 3
    readonly property int _matrixCellSize: 36
    readonly property int _librarySlotWidth: 200
    readonly property int _dotSize: 10
    readonly property int _weightFieldWidth: 84

    signal rangeTextEdited(string text)

    function _title() {
        return player === "ip" ? qsTranslate("ProjectPage", "IP Range")
                               : qsTranslate("ProjectPage", "OOP Range")
    }

    function _dotColor() {
        return player === "ip" ? _theme.info : _theme.actionBet
    }

    // A stroke adds hands at the click weight or takes them out, whichever the first cell asked for.
    function _paint(hand, desiredOn, currentWeight) {
        const addWeight = clickWeightPct / 100
        if (desiredOn && currentWeight <= 0)
            rangeTextEdited(RangeText.toggleHand(rangeText, hand, 0, addWeight))
        else if (!desiredOn && currentWeight > 0)
            rangeTextEdited(RangeText.toggleHand(rangeText, hand, currentWeight, addWeight))
    }

    function _clampWeightPct(value) {
        return Math.max(0, Math.min(_fullWeightPct, value))
    }

    // While typing, every acceptable value counts at once.
    function _takeTypedWeight() {
        if (weightField.acceptableInput)
            clickWeightPct = _clampWeightPct(parseFloat(weightField.text))
    }

    // When editing ends the value is clamped, text that is no number means the full weight, and the field is
    // rewritten in its short form.
    function _finishWeight() {
        const typed = parseFloat(weightField.text)
        clickWeightPct = isNaN(typed) ? _fullWeightPct : _clampWeightPct(typed)
        weightField.text = RangeText.formatWeight(clickWeightPct)
    }

    ColumnLayout {
        spacing: root._theme.spaceMd

        RowLayout {
            Layout.fillWidth: true
            spacing: root._theme.spaceSm

            Rectangle {
                objectName: "dot"
                implicitWidth: root._dotSize
                implicitHeight: root._dotSize
                radius: root._dotSize / 2
                color: root._dotColor()
            }

            Text {
                objectName: "title"
                Layout.fillWidth: true
                text: root._title()
                color: root._theme.text
                font.family: root._theme.fontFamily
                font.pixelSize: root._type.headingSm
                font.weight: root._type.weightSemibold
            }

            SecondaryButton {
                objectName: "clearButton"
                implicitHeight: 30
                theme: root._theme
                text: qsTranslate("ProjectPage", "Clear")
                enabled: root.rangeText.trim() !== ""
                onClicked: root.rangeTextEdited("")
            }
        }

        RowLayout {
            spacing: root._theme.spaceMd

            HandMatrix {
                id: matrix
                objectName: "matrix"
                Layout.alignment: Qt.AlignTop
                theme: root._theme
                cellSize: root._matrixCellSize
                editable: true
                weights: RangeText.parseRangeWeights(root.rangeText)
                onHandPainted: (hand, desiredOn, currentWeight) => root._paint(hand, desiredOn, currentWeight)
            }

            // The range library stands here; the slot keeps its room so that the card does not change size.
            Item {
                id: librarySlot
                objectName: "librarySlot"
                Layout.preferredWidth: root._librarySlotWidth
                Layout.fillHeight: true
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: root._theme.spaceSm

            Text {
                text: qsTranslate("ProjectPage", "Weight")
                color: root._theme.textMuted
                font.family: root._theme.fontFamily
                font.pixelSize: root._type.labelLg
                font.weight: root._type.weightMedium
            }

            ThemedTextField {
                id: weightField
                objectName: "weightField"
                Layout.preferredWidth: root._weightFieldWidth
                theme: root._theme
                placeholderText: qsTranslate("ProjectPage", "100")
                horizontalAlignment: TextInput.AlignRight
                font.family: root._theme.fontFamily
                font.pixelSize: root._type.bodySm
                validator: DoubleValidator {
                    bottom: 0
                    top: root._fullWeightPct
                    decimals: root._weightDecimals
                    notation: DoubleValidator.StandardNotation
                    // Typed with a decimal point in every language, as parseFloat reads it.
                    locale: "C"
                }
                onTextEdited: root._takeTypedWeight()
                // Not editingFinished: the validator holds that back for an empty field, which must still count.
                onActiveFocusChanged: {
                    if (!activeFocus)
                        root._finishWeight()
                }
                Keys.onReturnPressed: root._finishWeight()
                Keys.onEnterPressed: root._finishWeight()

                Binding on text {
                    when: !weightField.activeFocus
                    value: RangeText.formatWeight(root.clickWeightPct)
                    restoreMode: Binding.RestoreNone
                }
            }

            Text {
                text: qsTranslate("ProjectPage", "%")
                color: root._theme.textMuted
                font.family: root._theme.fontFamily
                font.pixelSize: root._type.bodySm
            }

            ThemedTextField {
                id: rangeField
                objectName: "rangeField"
                Layout.fillWidth: true
                Layout.leftMargin: root._theme.spaceSm
                theme: root._theme
                elideWhenIdle: true
                placeholderText: qsTranslate("ProjectPage", "e.g., AA, KK, AKs, QQ+ or 50%")
                text: root.rangeText
                font.family: root._theme.fontMono
                font.pixelSize: root._type.bodySm
                onTextEdited: root.rangeTextEdited(text)
            }
        }
    }
}
