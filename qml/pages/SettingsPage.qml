// The Settings page: the look of the interface, its language, and the notices of the open-source components.
// Dark mode and the accent take effect at once but are kept only when saved; the language manager keeps the
// language itself.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Qt.labs.settings
import Kelvane

Item {
    id: page

    property var theme: null
    property var type: null
    // Bound by the shell to the theme's mode; the user's choice goes back to the shell through it.
    property bool darkMode: true
    // The application's controller unless a test or a host hands in another.
    property var controller: typeof appController !== "undefined" ? appController : null

    readonly property var _hexColorPattern: /^#(?:[0-9A-Fa-f]{6}|[0-9A-Fa-f]{8})$/
    readonly property int _contentMaxWidth: 960
    // The page may be made before its theme arrives.
    readonly property int _margin: theme ? theme.spaceXl : 0

    function _isValidHexColor(s) {
        return _hexColorPattern.test(String(s).trim())
    }

    // An empty text drops the override; anything that is not a colour is ignored.
    function applyAccentHex(s) {
        const text = s === undefined || s === null ? "" : String(s).trim()
        if (text === "") {
            theme.useAccentOverride = false
            return
        }
        if (!_isValidHexColor(text))
            return
        theme.accentOverride = text
        theme.useAccentOverride = true
    }

    // Written key by key: the group's properties would reach the store only after a delay.
    function saveSettings() {
        uiSettings.setValue("darkMode", darkMode)
        uiSettings.setValue("accentHex", theme.useAccentOverride ? String(theme.accentOverride) : "")
        uiSettings.sync()
    }

    // Kept at once, with no further save; the language stays as it is.
    function _resetToDefaults() {
        darkMode = true
        applyAccentHex("")
        saveSettings()
    }

    function _callController(name) {
        if (controller && typeof controller[name] === "function")
            controller[name]()
    }

    // The values stored at start; the shell applies them, and this page only writes them.
    Settings {
        id: uiSettings

        property bool darkMode: true
        property string accentHex: ""

        category: "ui"
    }

    Flickable {
        id: flick

        objectName: "settingsFlickable"
        anchors.fill: parent
        clip: true
        contentWidth: width
        contentHeight: content.implicitHeight + 2 * page._margin
        boundsBehavior: Flickable.StopAtBounds

        ScrollBar.vertical: ScrollBar {
            policy: flick.contentHeight > flick.height + 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
        }

        ColumnLayout {
            id: content

            x: Math.max(page._margin, (flick.width - width) / 2)
            y: page._margin
            width: Math.min(flick.width - 2 * page._margin, page._contentMaxWidth)
            spacing: page._margin

            SectionHeader {
                objectName: "settingsHeader"
                Layout.fillWidth: true
                theme: page.theme
                title: qsTr("Settings")
            }

            SettingsAppearanceCard {
                objectName: "appearanceCard"
                Layout.fillWidth: true
                theme: page.theme
                type: page.type
                darkMode: page.darkMode
                onDarkModeToggled: on => page.darkMode = on
                onAccentChosen: hex => page.applyAccentHex(hex)
            }

            SettingsLicensesCard {
                objectName: "licensesCard"
                Layout.fillWidth: true
                theme: page.theme
                type: page.type
                showTbb: page.controller ? page.controller.useTbb === true : false
                onOpenFolderClicked: page._callController("openLicensesFolder")
                onOpenNoticesClicked: page._callController("openThirdPartyNotices")
            }

            RowLayout {
                Layout.fillWidth: true
                spacing: page.theme.spaceMd

                Item {
                    Layout.fillWidth: true
                }

                SecondaryButton {
                    objectName: "resetDefaultsButton"
                    theme: page.theme
                    text: qsTr("Reset to Defaults")
                    onClicked: page._resetToDefaults()
                }

                PrimaryButton {
                    objectName: "saveSettingsButton"
                    theme: page.theme
                    text: qsTr("Save Settings")
                    iconName: "save"
                    onClicked: page.saveSettings()
                }
            }
        }
    }
}
