// The Quick Actions card: three ways into a project, each leaving Home for the Setup page.
import QtQuick
import QtQuick.Layouts
import Kelvane

Card {
    id: card

    property var type: null

    readonly property var _actions: [
        {key: "newProject", icon: "target", title: qsTranslate("HomePage", "New Solve"),
         description: qsTranslate("HomePage", "Configure board, ranges, tree")},
        {key: "quickSolve", icon: "bolt", title: qsTranslate("HomePage", "Quick Solve"),
         description: qsTranslate("HomePage", "Use default settings")},
        {key: "importRange", icon: "chart", title: qsTranslate("HomePage", "Import Range"),
         description: qsTranslate("HomePage", "Load from file")}
    ]

    // Carries the key of the chosen row: "newProject", "quickSolve" or "importRange".
    signal actionChosen(string key)

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: card.theme.spaceMd

        HomeCardTitle {
            theme: card.theme
            type: card.type
            iconName: "bolt"
            text: qsTranslate("HomePage", "Quick Actions")
        }

        Repeater {
            model: card._actions

            delegate: HomeActionRow {
                required property var modelData

                objectName: "quickAction_" + modelData.key
                Layout.fillWidth: true
                theme: card.theme
                type: card.type
                iconName: modelData.icon
                title: modelData.title
                description: modelData.description
                onActivated: card.actionChosen(modelData.key)
            }
        }
    }
}
