// The Setup page's header: title, subtitle and readiness badge, the settings profile buttons, and the way on to
// the Solve page.
import QtQuick
import QtQuick.Layouts
import Kelvane

RowLayout {
    id: header

    property var theme: null
    property bool boardReady: false
    property bool canSolve: false

    signal saveSettingsClicked()
    signal loadSettingsClicked()
    signal continueClicked()

    spacing: theme.spaceMd

    SectionHeader {
        objectName: "pageHeader"
        Layout.fillWidth: true
        theme: header.theme
        title: qsTranslate("ProjectPage", "Project Setup")
        subtitle: qsTranslate("ProjectPage", "Configure your game tree: board, ranges, and bet sizing.")
        badge: header.boardReady ? qsTranslate("ProjectPage", "Ready") : qsTranslate("ProjectPage", "Setup Required")
        badgeColor: header.boardReady ? header.theme.success : header.theme.warn
    }

    SecondaryButton {
        objectName: "saveSettingsButton"
        theme: header.theme
        text: qsTranslate("ProjectPage", "Save settings")
        iconName: "save"
        onClicked: header.saveSettingsClicked()
    }

    SecondaryButton {
        objectName: "loadSettingsButton"
        theme: header.theme
        text: qsTranslate("ProjectPage", "Load settings")
        iconName: "folder-open"
        onClicked: header.loadSettingsClicked()
    }

    PrimaryButton {
        objectName: "continueButton"
        theme: header.theme
        text: qsTranslate("ProjectPage", "Continue to Solve →")
        enabled: header.canSolve
        onClicked: header.continueClicked()
    }
}
