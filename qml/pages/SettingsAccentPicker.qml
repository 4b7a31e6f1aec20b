// The accent colour choice: a way back to the theme's own accent, and the offered colours as swatches.
import QtQuick
import QtQuick.Layouts
import Kelvane

RowLayout {
    id: picker

    property var theme: null
    property var type: null

    // The offered accents; their names are shown as they are, like the hex values beside them.
    readonly property var swatches: theme.accentSwatches
    // Low enough to sit in line with the swatches.
    readonly property int _resetHeight: 32

    // Carries the chosen "#RRGGBB", or "" to go back to the theme's own accent.
    signal accentChosen(string hex)

    spacing: theme.spaceSm

    SecondaryButton {
        objectName: "accentResetButton"
        Layout.preferredHeight: picker._resetHeight
        Layout.rightMargin: picker.theme.spaceSm
        theme: picker.theme
        text: qsTranslate("SettingsPage", "Reset")
        enabled: picker.theme.useAccentOverride
        onClicked: picker.accentChosen("")
    }

    Repeater {
        model: picker.swatches

        delegate: AccentSwatch {
            required property var modelData

            objectName: "accentSwatch_" + modelData.name
            theme: picker.theme
            type: picker.type
            label: modelData.name
            hex: modelData.hex
            onClicked: picker.accentChosen(hex)
        }
    }
}
