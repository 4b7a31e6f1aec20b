// The Appearance card: dark or light colours, the interface language, and the accent colour.
import QtQuick
import QtQuick.Layouts
import Kelvane

Card {
    id: card

    property var type: null
    property bool darkMode: true

    signal darkModeToggled(bool on)
    // Carries the chosen "#RRGGBB", or "" to go back to the theme's own accent.
    signal accentChosen(string hex)

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: card.theme.spaceMd

        HomeCardTitle {
            theme: card.theme
            type: card.type
            iconName: "palette"
            text: qsTranslate("SettingsPage", "Appearance")
        }

        SettingsRow {
            objectName: "darkModeRow"
            Layout.fillWidth: true
            theme: card.theme
            type: card.type
            title: qsTranslate("SettingsPage", "Dark Mode")
            description: qsTranslate("SettingsPage", "Use dark color scheme throughout the interface")

            ToggleSwitch {
                id: darkModeSwitch

                objectName: "darkModeSwitch"
                theme: card.theme
                onToggled: card.darkModeToggled(checked)
            }
        }

        SettingsRow {
            objectName: "languageRow"
            Layout.fillWidth: true
            theme: card.theme
            type: card.type
            title: qsTranslate("SettingsPage", "Language")
            description: qsTranslate("SettingsPage", "Change the app language (takes effect immediately)")

            SettingsLanguageBox {
                objectName: "languageBox"
                theme: card.theme
                type: card.type
            }
        }

        SettingsRow {
            objectName: "accentRow"
            Layout.fillWidth: true
            theme: card.theme
            type: card.type
            title: qsTranslate("SettingsPage", "Accent Color")
            description: qsTranslate("SettingsPage",
                                     "Customize the app highlight color (buttons, accents, clubs/check).")

            SettingsAccentPicker {
                objectName: "accentPicker"
                theme: card.theme
                type: card.type
                onAccentChosen: hex => card.accentChosen(hex)
            }
        }
    }

    // Unlike a plain binding, this one survives the switch's own change of state when it is clicked.
    Binding {
        target: darkModeSwitch
        property: "checked"
        value: card.darkMode
    }
}
