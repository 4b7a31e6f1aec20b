// The Licenses card: the open-source components this build uses, where their notices are, and two ways to
// open them.
import QtQuick
import QtQuick.Layouts
import Kelvane

Card {
    id: card

    property var type: null
    // Whether this build threads through oneTBB, and so ships its notice.
    property bool showTbb: false

    signal openFolderClicked()
    signal openNoticesClicked()

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: card.theme.spaceMd

        HomeCardTitle {
            theme: card.theme
            type: card.type
            iconName: "scroll"
            text: qsTranslate("SettingsPage", "Licenses")
        }

        // Product and licence names, shown as they are published.
        SettingsLicenseRow {
            objectName: "licenseRow_qt"
            Layout.fillWidth: true
            theme: card.theme
            type: card.type
            name: "Qt Framework"
            note: "Runtime (dynamic linking)"
            licence: "LGPL v3"
        }

        SettingsLicenseRow {
            objectName: "licenseRow_tbb"
            Layout.fillWidth: true
            visible: card.showTbb
            theme: card.theme
            type: card.type
            name: qsTranslate("SettingsPage", "oneTBB")
            note: qsTranslate("SettingsPage", "Threading")
            licence: qsTranslate("SettingsPage", "Apache 2.0")
        }

        Text {
            objectName: "licensesNote"
            Layout.fillWidth: true
            Layout.topMargin: card.theme.spaceXs
            text: qsTranslate("SettingsPage",
                              "Third-party notices and license texts are included in the 'licenses' folder next to the executable.")
            color: card.theme.textMuted
            wrapMode: Text.WordWrap
            font.family: card.theme.fontFamily
            font.pixelSize: card.type.bodySm
        }

        RowLayout {
            spacing: card.theme.spaceMd

            SecondaryButton {
                objectName: "openLicensesFolderButton"
                theme: card.theme
                text: qsTranslate("SettingsPage", "Open licenses folder")
                iconName: "folder-open"
                onClicked: card.openFolderClicked()
            }

            SecondaryButton {
                objectName: "openNoticesButton"
                theme: card.theme
                text: qsTranslate("SettingsPage", "Open notices")
                iconName: "file-text"
                onClicked: card.openNoticesClicked()
            }
        }
    }
}
