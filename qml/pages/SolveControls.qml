// The run's controls: start, cancel, and the way on to the results once a run has left some.
import QtQuick
import QtQuick.Layouts
import Kelvane

Card {
    id: card

    property var type: null
    property var solvePage: null

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: card.theme.spaceSm

        PrimaryButton {
            objectName: "startSolveButton"
            Layout.fillWidth: true
            theme: card.theme
            text: card.solvePage.running ? qsTranslate("SolvePage", "Solving...")
                                         : qsTranslate("SolvePage", "Start Solve")
            iconText: qsTranslate("SolvePage", "▶")
            loading: card.solvePage.running
            enabled: !card.solvePage.running && card.solvePage.canSolve
            onClicked: card.solvePage.startSolve()
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: card.theme.spaceSm

            SecondaryButton {
                objectName: "cancelSolveButton"
                Layout.fillWidth: true
                theme: card.theme
                text: qsTranslate("SolvePage", "Cancel")
                iconName: "stop"
                danger: true
                enabled: card.solvePage.running
                onClicked: card.solvePage.cancelSolve()
            }

            SecondaryButton {
                objectName: "viewResultsButton"
                Layout.fillWidth: true
                theme: card.theme
                text: qsTranslate("SolvePage", "View Results →")
                iconName: "trend-up"
                enabled: card.solvePage.runComplete
                onClicked: card.solvePage.goToResults()
            }
        }
    }
}
