// "Node-Locking": choose an action and a probability, then click hands in the matrix to lock them; "Re-solve"
// solves the same tree again with every lock in force.
import QtQuick
import QtQuick.Layouts
import Kelvane

ResultsPanel {
    id: panel

    property var page: null

    readonly property bool _lockable: page._currentNodeIsLockable()

    title: qsTranslate("ResultsPage", "Node-Locking")

    ResultsText {
        objectName: "nodeLockUnavailable"
        visible: !panel._lockable
        Layout.fillWidth: true
        theme: panel.theme
        type: panel.type
        text: qsTranslate("ResultsPage", "Node-locking is only available on decision nodes.")
        color: panel.theme.warn
        wrapMode: Text.Wrap
    }

    Flow {
        visible: panel._lockable
        Layout.fillWidth: true
        spacing: panel.theme.spaceXs

        Repeater {
            model: panel._lockable ? panel.page.nodeLockActionList : []

            SecondaryButton {
                required property int index
                required property var modelData

                objectName: "lockAction_" + index
                theme: panel.theme
                text: (index === panel.page.nodeLockSelectedActionIndex ? "✓ " : "") + modelData.name
                onClicked: panel.page.nodeLockSelectedActionIndex = index
            }
        }
    }

    RowLayout {
        visible: panel._lockable
        Layout.fillWidth: true
        spacing: panel.theme.spaceSm

        ResultsText {
            theme: panel.theme
            type: panel.type
            text: qsTranslate("ResultsPage", "Weight")
            color: panel.theme.textMuted
        }

        ThemedTextField {
            objectName: "lockWeightField"
            Layout.fillWidth: true
            theme: panel.theme
            placeholderText: qsTranslate("ResultsPage", "0..1")
            text: panel.page.nodeLockWeightText
            onTextEdited: panel.page.nodeLockWeightText = text
        }
    }

    RowLayout {
        visible: panel._lockable
        Layout.fillWidth: true
        spacing: panel.theme.spaceSm

        SecondaryButton {
            objectName: "resetWeightsButton"
            Layout.fillWidth: true
            theme: panel.theme
            text: qsTranslate("ResultsPage", "Reset weights")
            onClicked: panel.page.resetNodeLockEdits(panel.page.currentNodeIndex)
        }

        PrimaryButton {
            objectName: "reSolveButton"
            Layout.fillWidth: true
            theme: panel.theme
            text: qsTranslate("ResultsPage", "Re-solve")
            enabled: panel.page.controller !== null && panel._lockable
            onClicked: panel.page.reSolve()
        }
    }

    ResultsText {
        Layout.fillWidth: true
        theme: panel.theme
        type: panel.type
        text: qsTranslate("ResultsPage", "Tip: select an action above, then click a hand cell in the matrix to lock it.")
        color: panel.theme.textMuted
        font.pixelSize: panel.type.labelMd
        wrapMode: Text.Wrap
    }
}
