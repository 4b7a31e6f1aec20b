// The three dialogs of the settings profiles: save the current settings under a name, load or delete a saved
// profile, and confirm a deletion. The list, the messages and the selection belong to the page; these dialogs
// show them and hand the user's choices back to it.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Kelvane

Item {
    id: dialogs

    property var theme: null
    property var type: null
    // The ProjectPage whose profiles these are.
    property var setupPage: null

    readonly property int _dialogWidth: 420
    readonly property int _rowHeight: 40
    readonly property int _visibleRows: 6
    readonly property real _selectedFillAlpha: 0.15

    function openSave() {
        setupPage._saveProfileError = ""
        nameField.text = ""
        saveDialog.open()
    }

    function openLoad() {
        setupPage._loadProfileError = ""
        setupPage._loadProfileSelectedId = ""
        loadDialog.open()
    }

    function _save() {
        if (setupPage._commitSaveProfile(nameField.text))
            saveDialog.close()
    }

    function _load() {
        if (setupPage._commitLoadProfile())
            loadDialog.close()
    }

    function _askDelete() {
        setupPage._prepareDeleteProfile()
        deleteDialog.open()
    }

    function _confirmDelete() {
        setupPage._confirmDeleteProfile()
        deleteDialog.close()
    }

    // Only the day: the time of saving says little.
    function _createdText(createdAt) {
        const date = new Date(createdAt)
        return isNaN(date.getTime()) ? "" : date.toLocaleDateString(Qt.locale(), Locale.ShortFormat)
    }

    function _hasSelection() {
        return setupPage._loadProfileSelectedId !== ""
    }

    SetupDialog {
        id: saveDialog
        objectName: "saveProfileDialog"
        anchors.centerIn: parent
        width: dialogs._dialogWidth
        theme: dialogs.theme
        type: dialogs.type
        modal: true
        title: qsTranslate("ProjectPage", "Save Settings Profile")
        footerButtons: [
            SecondaryButton {
                objectName: "cancelSaveButton"
                theme: dialogs.theme
                text: qsTranslate("ProjectPage", "Cancel")
                onClicked: saveDialog.close()
            },
            PrimaryButton {
                objectName: "saveProfileButton"
                theme: dialogs.theme
                text: qsTranslate("ProjectPage", "Save")
                enabled: nameField.text.trim() !== ""
                onClicked: dialogs._save()
            }
        ]
        onOpened: {
            dialogs.setupPage._saveProfileError = ""
            nameField.forceActiveFocus()
        }

        ColumnLayout {
            anchors.left: parent.left
            anchors.right: parent.right
            spacing: dialogs.theme.spaceSm

            Text {
                text: qsTranslate("ProjectPage", "Profile name:")
                color: dialogs.theme.textMuted
                font.family: dialogs.theme.fontFamily
                font.pixelSize: dialogs.type.labelLg
            }

            ThemedTextField {
                id: nameField
                objectName: "profileNameField"
                Layout.fillWidth: true
                theme: dialogs.theme
                font.family: dialogs.theme.fontFamily
                font.pixelSize: dialogs.type.bodySm
                placeholderText: qsTranslate("ProjectPage", "e.g., 100bb rake-free (fast)")
                // Return saves even while the button is disabled, so that an empty name gets its message.
                onAccepted: dialogs._save()
            }

            Text {
                objectName: "saveProfileError"
                Layout.fillWidth: true
                visible: text !== ""
                text: dialogs.setupPage._saveProfileError
                color: dialogs.theme.danger
                font.family: dialogs.theme.fontFamily
                font.pixelSize: dialogs.type.labelMd
                wrapMode: Text.WordWrap
            }
        }
    }

    SetupDialog {
        id: loadDialog
        objectName: "loadProfileDialog"
        anchors.centerIn: parent
        width: dialogs._dialogWidth
        theme: dialogs.theme
        type: dialogs.type
        modal: true
        title: qsTranslate("ProjectPage", "Load Settings Profile")
        footerButtons: [
            SecondaryButton {
                objectName: "deleteProfileButton"
                theme: dialogs.theme
                text: qsTranslate("ProjectPage", "Delete")
                danger: true
                enabled: dialogs._hasSelection()
                onClicked: dialogs._askDelete()
            },
            SecondaryButton {
                objectName: "cancelLoadButton"
                theme: dialogs.theme
                text: qsTranslate("ProjectPage", "Cancel")
                onClicked: loadDialog.close()
            },
            PrimaryButton {
                objectName: "loadProfileButton"
                theme: dialogs.theme
                text: qsTranslate("ProjectPage", "Load")
                enabled: dialogs._hasSelection()
                onClicked: dialogs._load()
            }
        ]

        ColumnLayout {
            anchors.left: parent.left
            anchors.right: parent.right
            spacing: dialogs.theme.spaceSm

            Text {
                text: qsTranslate("ProjectPage", "Choose a saved profile:")
                color: dialogs.theme.textMuted
                font.family: dialogs.theme.fontFamily
                font.pixelSize: dialogs.type.labelLg
            }

            Text {
                objectName: "noProfilesText"
                visible: profileList.count === 0
                text: qsTranslate("ProjectPage", "No saved profiles yet.")
                color: dialogs.theme.textFaint
                font.family: dialogs.theme.fontFamily
                font.pixelSize: dialogs.type.bodySm
            }

            ListView {
                id: profileList
                objectName: "profileList"
                Layout.fillWidth: true
                Layout.preferredHeight: Math.min(count, dialogs._visibleRows) * dialogs._rowHeight
                visible: count > 0
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                model: dialogs.setupPage.settingsProfiles
                delegate: Rectangle {
                    id: row

                    required property var modelData
                    required property int index
                    readonly property bool selected: modelData.id === dialogs.setupPage._loadProfileSelectedId

                    objectName: "profileRow_" + index
                    width: ListView.view.width
                    height: dialogs._rowHeight
                    radius: dialogs.theme.radiusSm
                    color: selected ? dialogs.theme.withOpacity(dialogs.theme.accent, dialogs._selectedFillAlpha)
                                    : rowArea.containsMouse ? dialogs.theme.surfaceHover : "transparent"
                    border.color: selected ? dialogs.theme.accent : "transparent"
                    border.width: 1

                    Text {
                        objectName: "profileName"
                        anchors.left: parent.left
                        anchors.right: createdText.left
                        anchors.leftMargin: dialogs.theme.spaceMd
                        anchors.rightMargin: dialogs.theme.spaceSm
                        anchors.verticalCenter: parent.verticalCenter
                        text: row.modelData.name
                        elide: Text.ElideRight
                        color: dialogs.theme.text
                        font.family: dialogs.theme.fontFamily
                        font.pixelSize: dialogs.type.bodySm
                    }

                    Text {
                        id: createdText
                        anchors.right: parent.right
                        anchors.rightMargin: dialogs.theme.spaceMd
                        anchors.verticalCenter: parent.verticalCenter
                        text: dialogs._createdText(row.modelData.createdAt)
                        color: dialogs.theme.textFaint
                        font.family: dialogs.theme.fontFamily
                        font.pixelSize: dialogs.type.labelMd
                    }

                    MouseArea {
                        id: rowArea
                        anchors.fill: parent
                        hoverEnabled: true
                        onClicked: dialogs.setupPage._loadProfileSelectedId = row.modelData.id
                        onDoubleClicked: {
                            dialogs.setupPage._loadProfileSelectedId = row.modelData.id
                            dialogs._load()
                        }
                    }
                }
            }

            Text {
                objectName: "loadProfileError"
                Layout.fillWidth: true
                visible: text !== ""
                text: dialogs.setupPage._loadProfileError
                color: dialogs.theme.danger
                font.family: dialogs.theme.fontFamily
                font.pixelSize: dialogs.type.labelMd
                wrapMode: Text.WordWrap
            }
        }
    }

    SetupDialog {
        id: deleteDialog
        objectName: "deleteProfileDialog"
        anchors.centerIn: parent
        width: dialogs._dialogWidth
        theme: dialogs.theme
        type: dialogs.type
        modal: true
        title: qsTranslate("ProjectPage", "Delete settings profile")
        footerButtons: [
            SecondaryButton {
                objectName: "cancelDeleteButton"
                theme: dialogs.theme
                text: qsTranslate("ProjectPage", "Cancel")
                onClicked: deleteDialog.close()
            },
            SecondaryButton {
                objectName: "confirmDeleteButton"
                theme: dialogs.theme
                text: qsTranslate("ProjectPage", "Delete")
                danger: true
                onClicked: dialogs._confirmDelete()
            }
        ]

        ColumnLayout {
            anchors.left: parent.left
            anchors.right: parent.right
            spacing: dialogs.theme.spaceSm

            Text {
                Layout.fillWidth: true
                text: qsTranslate("ProjectPage", "Are you sure you want to delete this saved profile?")
                color: dialogs.theme.text
                font.family: dialogs.theme.fontFamily
                font.pixelSize: dialogs.type.bodySm
                wrapMode: Text.WordWrap
            }

            Text {
                objectName: "deleteProfileName"
                Layout.fillWidth: true
                text: qsTranslate("ProjectPage", "“%1”").arg(dialogs.setupPage._deleteProfileName)
                color: dialogs.theme.text
                font.family: dialogs.theme.fontFamily
                font.pixelSize: dialogs.type.bodySm
                font.weight: dialogs.type.weightSemibold
                elide: Text.ElideRight
            }

            Text {
                Layout.fillWidth: true
                text: qsTranslate("ProjectPage", "This cannot be undone.")
                color: dialogs.theme.textMuted
                font.family: dialogs.theme.fontFamily
                font.pixelSize: dialogs.type.labelMd
                wrapMode: Text.WordWrap
            }
        }
    }
}
