// The machine side of a run: how many threads it uses, and the arithmetic it runs in.
import QtQuick
import QtQuick.Layouts
import Kelvane

Card {
    id: card

    property var type: null
    property var solvePage: null
    property alias threadBox: threadBox

    readonly property int _titleIconSize: 16
    // The solver always runs in 32-bit floats; the second entry is shown but changes nothing.
    readonly property var _precisionChoices: [qsTranslate("SolvePage", "Float32"), qsTranslate("SolvePage", "Float64")]

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: card.theme.spaceMd

        RowLayout {
            spacing: card.theme.spaceSm

            Icon {
                name: "monitor"
                size: card._titleIconSize
                color: card.theme.textMuted
            }

            Text {
                text: qsTranslate("SolvePage", "Compute")
                color: card.theme.text
                font.family: card.theme.fontFamily
                font.pixelSize: card.type.headingSm
                font.weight: card.type.weightSemibold
            }
        }

        GridLayout {
            Layout.fillWidth: true
            columns: 2
            columnSpacing: card.theme.spaceMd
            rowSpacing: card.theme.spaceSm

            Text {
                text: qsTranslate("SolvePage", "Threads")
                color: card.theme.textMuted
                font.family: card.theme.fontFamily
                font.pixelSize: card.type.bodySm
            }

            SolveComboBox {
                id: threadBox

                function showPageChoice() {
                    currentIndex = card.solvePage._threadChoiceIndex()
                }

                objectName: "threadChoiceBox"
                Layout.fillWidth: true
                theme: card.theme
                type: card.type
                model: card.solvePage._threadChoiceModel
                labelFor: choice => card.solvePage._threadChoiceLabel(choice)
                // Set, not bound, and only after a new model has settled: the box resets its index on its own.
                onModelChanged: Qt.callLater(showPageChoice)
                onActivated: index => {
                    card.solvePage._chooseThreadChoice(index)
                    showPageChoice()
                }
                Component.onCompleted: showPageChoice()

                Connections {
                    target: card.solvePage

                    function onThreadCountChanged() {
                        threadBox.showPageChoice()
                    }
                }
            }

            Text {
                text: qsTranslate("SolvePage", "Precision")
                color: card.theme.textMuted
                font.family: card.theme.fontFamily
                font.pixelSize: card.type.bodySm
            }

            SolveComboBox {
                objectName: "precisionBox"
                Layout.fillWidth: true
                theme: card.theme
                type: card.type
                model: card._precisionChoices
                currentIndex: 0
            }
        }
    }
}
