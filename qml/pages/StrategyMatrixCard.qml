// "Strategy by Hand": the 13 by 13 matrix of the current node, each cell filled to its reach and coloured by its
// strategy, with a legend of the actions played more than now and then.
import QtQuick
import QtQuick.Layouts
import Kelvane

ResultsPanel {
    id: card

    property var page: null

    readonly property int _cellSize: 28
    readonly property int _swatchSize: 12
    readonly property real _legendMinFrequency: 0.05

    function _legendColor(action) {
        return action.color ? action.color : theme.actionColor(action.actionType ? action.actionType : action.name)
    }

    title: qsTranslate("ResultsPage", "Strategy by Hand")

    HandMatrix {
        objectName: "strategyMatrix"
        theme: card.theme
        cellSize: card._cellSize
        weightDisplayMode: "verticalFill"
        showLabels: true
        selectable: true
        weights: card.page.handWeights
        colors: card.page.handColors
        actionTypes: card.page.handActionTypeList
        actionProbs: card.page.handActionProbs
        onHandClicked: hand => card.page._onMatrixClick(hand)
    }

    Flow {
        objectName: "strategyLegend"
        Layout.fillWidth: true
        Layout.maximumWidth: 13 * (card._cellSize + 2)
        spacing: card.theme.spaceSm

        Repeater {
            model: card.page.currentActions

            Row {
                required property var modelData

                visible: Number(modelData.frequency) > card._legendMinFrequency
                spacing: card.theme.spaceXs

                Rectangle {
                    anchors.verticalCenter: parent.verticalCenter
                    width: card._swatchSize
                    height: card._swatchSize
                    radius: card.theme.radiusXs / 2
                    color: card._legendColor(parent.modelData)
                }

                ResultsText {
                    theme: card.theme
                    type: card.type
                    text: parent.modelData.name
                    color: card.theme.textMuted
                    font.pixelSize: card.type.labelMd
                }
            }
        }
    }
}
