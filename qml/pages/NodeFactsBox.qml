// The current node's pot, the acting player's stack behind and the amount to call, beside the two mode buttons.
import QtQuick
import QtQuick.Layouts
import Kelvane

RowLayout {
    id: facts

    property var page: null
    property var theme: null
    property var type: null

    readonly property int _amountDecimals: 2
    readonly property int _modeButtonWidth: 150

    function _amount(value) {
        return String(Number(value.toFixed(_amountDecimals)))
    }

    spacing: theme.spaceSm

    Rectangle {
        objectName: "nodeFacts"
        Layout.fillWidth: true
        implicitHeight: factsColumn.implicitHeight + 2 * facts.theme.spaceMd
        color: facts.theme.surface
        radius: facts.theme.radiusMd
        border.color: facts.theme.stroke

        ColumnLayout {
            id: factsColumn

            anchors.fill: parent
            anchors.margins: facts.theme.spaceMd
            spacing: facts.theme.spaceXs

            NodeFactRow {
                theme: facts.theme
                type: facts.type
                name: "pot"
                label: qsTranslate("ResultsPage", "Pot")
                value: facts._amount(facts.page._potSize())
            }

            NodeFactRow {
                theme: facts.theme
                type: facts.type
                name: "stack"
                label: qsTranslate("ResultsPage", "Stack (%1)").arg(facts.page.selectedPlayer)
                value: facts._amount(facts.page._stackRemaining())
            }

            NodeFactRow {
                theme: facts.theme
                type: facts.type
                name: "toCall"
                label: qsTranslate("ResultsPage", "To call")
                value: facts._amount(facts.page._toCallAmount())
            }
        }
    }

    ColumnLayout {
        Layout.alignment: Qt.AlignTop
        // Its buttons fill it, which would otherwise let it take the whole row.
        Layout.fillWidth: false
        Layout.preferredWidth: facts._modeButtonWidth
        spacing: facts.theme.spaceXs

        SecondaryButton {
            objectName: "standardModeButton"
            Layout.fillWidth: true
            theme: facts.theme
            text: (facts.page.nodeLockMode ? "" : "✓ ") + qsTranslate("ResultsPage", "Standard mode")
            onClicked: facts.page.enterStandardMode()
        }

        SecondaryButton {
            objectName: "nodeLockModeButton"
            Layout.fillWidth: true
            theme: facts.theme
            text: (facts.page.nodeLockMode ? "✓ " : "") + qsTranslate("ResultsPage", "Node-lock mode")
            onClicked: facts.page.enterNodeLockMode()
        }
    }
}
