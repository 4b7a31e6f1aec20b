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
        implicitHeight: factsGrid.implicitHeight + 2 * facts.theme.spaceMd
        color: facts.theme.surface
        radius: facts.theme.radiusMd
        border.color: facts.theme.stroke

        GridLayout {
            id: factsGrid

            anchors.fill: parent
            anchors.margins: facts.theme.spaceMd
            columns: 2
            rowSpacing: facts.theme.spaceXs
            columnSpacing: facts.theme.spaceMd

            Repeater {
                model: [
                    {label: qsTranslate("ResultsPage", "Pot"), value: facts.page._potSize(), name: "pot"},
                    {label: qsTranslate("ResultsPage", "Stack (%1)").arg(facts.page.selectedPlayer),
                     value: facts.page._stackRemaining(), name: "stack"},
                    {label: qsTranslate("ResultsPage", "To call"), value: facts.page._toCallAmount(), name: "toCall"}
                ]

                RowLayout {
                    required property var modelData

                    Layout.columnSpan: 2
                    Layout.fillWidth: true

                    ResultsText {
                        Layout.fillWidth: true
                        theme: facts.theme
                        type: facts.type
                        text: parent.modelData.label
                        color: facts.theme.textMuted
                    }

                    ResultsText {
                        objectName: "fact_" + parent.modelData.name
                        theme: facts.theme
                        type: facts.type
                        text: facts._amount(parent.modelData.value)
                        font.family: facts.theme.fontMono
                        font.weight: facts.type.weightSemibold
                    }
                }
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
