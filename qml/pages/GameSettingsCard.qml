// The "Game Settings" card: pot, stack, rake, rake cap and the exploitability target, with three quick targets.
// Each edit leaves as settingEdited(property name, value); the page stores it.
import QtQuick
import QtQuick.Layouts
import Kelvane

Card {
    id: card

    property var type: null
    property int startingPot: 0
    property int effectiveStack: 0
    property real rakePercent: 0.0
    property int rakeCap: 0
    property real targetExploitability: 0.0
    property int inputColumnWidth: 60

    // One row per field: label, property, decimals, bounds, the value text that is no number gives, placeholder.
    readonly property var _fields: [
        {label: qsTranslate("ProjectPage", "Starting Pot"), key: "startingPot", decimals: 0, minimum: 1,
         maximum: 100000, fallback: 100, placeholder: qsTranslate("ProjectPage", "e.g., 100")},
        {label: qsTranslate("ProjectPage", "Effective Stack"), key: "effectiveStack", decimals: 0, minimum: 1,
         maximum: 100000, fallback: 100, placeholder: qsTranslate("ProjectPage", "e.g., 100")},
        {label: qsTranslate("ProjectPage", "Rake (%)"), key: "rakePercent", decimals: 3, minimum: 0.0,
         maximum: 100.0, fallback: 0.0, placeholder: qsTranslate("ProjectPage", "e.g., 5.0")},
        {label: qsTranslate("ProjectPage", "Rake Cap"), key: "rakeCap", decimals: 0, minimum: 0,
         maximum: 1000000, fallback: 0, placeholder: qsTranslate("ProjectPage", "e.g., 0")},
        {label: qsTranslate("ProjectPage", "Target Exploitability (%)"), key: "targetExploitability", decimals: 6,
         minimum: 0.0, maximum: 100.0, fallback: 0.10, placeholder: qsTranslate("ProjectPage", "e.g., 0.10")}
    ]
    readonly property var _quickTargets: [
        {text: qsTranslate("ProjectPage", "1%"), value: 1.0},
        {text: qsTranslate("ProjectPage", "0.5%"), value: 0.5},
        {text: qsTranslate("ProjectPage", "0.1%"), value: 0.1}
    ]
    readonly property int _titleIconSize: 16
    readonly property int _quickButtonHeight: 30

    signal settingEdited(string key, var value)

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: card.theme.spaceMd

        RowLayout {
            spacing: card.theme.spaceSm

            Icon {
                name: "chips"
                size: card._titleIconSize
                color: card.theme.textMuted
            }

            Text {
                text: qsTranslate("ProjectPage", "Game Settings")
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

            Repeater {
                model: card._fields

                delegate: Text {
                    required property var modelData
                    required property int index

                    Layout.row: index
                    Layout.column: 0
                    Layout.fillWidth: true
                    text: modelData.label
                    color: card.theme.textMuted
                    font.family: card.theme.fontFamily
                    font.pixelSize: card.type.labelLg
                    font.weight: card.type.weightMedium
                }
            }

            Repeater {
                model: card._fields

                delegate: SettingNumberField {
                    required property var modelData
                    required property int index

                    objectName: modelData.key + "Field"
                    Layout.row: index
                    Layout.column: 1
                    Layout.preferredWidth: card.inputColumnWidth
                    theme: card.theme
                    font.family: card.theme.fontFamily
                    font.pixelSize: card.type.bodySm
                    leftPadding: card.theme.spaceSm
                    rightPadding: card.theme.spaceSm
                    value: card[modelData.key]
                    decimals: modelData.decimals
                    minimum: modelData.minimum
                    maximum: modelData.maximum
                    fallback: modelData.fallback
                    placeholderText: modelData.placeholder
                    onValueEdited: value => card.settingEdited(modelData.key, value)
                }
            }
        }

        RowLayout {
            spacing: card.theme.spaceSm

            Text {
                Layout.fillWidth: true
                text: qsTranslate("ProjectPage", "Quick target")
                color: card.theme.textFaint
                font.family: card.theme.fontFamily
                font.pixelSize: card.type.labelMd
            }

            Repeater {
                model: card._quickTargets

                delegate: SecondaryButton {
                    required property var modelData

                    objectName: "target_" + modelData.value
                    implicitHeight: card._quickButtonHeight
                    // Narrow, so that the first row of the Setup page fits a window of 1540 pixels.
                    horizontalPadding: card.theme.spaceSm
                    theme: card.theme
                    text: modelData.text
                    onClicked: card.settingEdited("targetExploitability", modelData.value)
                }
            }
        }
    }
}
