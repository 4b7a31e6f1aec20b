// A modal dialog of the range library that asks for one name: a label, the name field, an error in the danger
// colour that keeps the dialog open, and "Cancel" beside the confirming button. Return confirms when that button
// is enabled; Escape or a press outside closes.
import QtQuick
import QtQuick.Layouts
import Kelvane

SetupDialog {
    id: dialog

    property string label: ""
    property string placeholder: ""
    property string confirmText: ""
    property string errorText: ""
    property bool confirmEnabled: true
    // The field takes the focus on opening unless this is false, as when an error is all there is to read.
    property bool focusOnOpen: true
    property alias name: nameField.text

    readonly property int _dialogWidth: 420

    signal confirmed(string name)

    // A refused name leaves the dialog open, with the field ready to be corrected.
    function _confirm() {
        if (!confirmEnabled)
            return
        confirmed(nameField.text)
        if (visible)
            nameField.forceActiveFocus()
    }

    anchors.centerIn: parent
    width: _dialogWidth
    modal: true
    footerButtons: [
        SecondaryButton {
            objectName: "cancelButton"
            theme: dialog.theme
            text: qsTranslate("ProjectPage", "Cancel")
            onClicked: dialog.close()
        },
        PrimaryButton {
            objectName: "confirmButton"
            theme: dialog.theme
            text: dialog.confirmText
            enabled: dialog.confirmEnabled
            onClicked: dialog._confirm()
        }
    ]
    onOpened: {
        if (focusOnOpen)
            nameField.forceActiveFocus()
    }

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: dialog.theme.spaceSm

        Text {
            objectName: "nameLabel"
            text: dialog.label
            color: dialog.theme.textMuted
            font.family: dialog.theme.fontFamily
            font.pixelSize: dialog.type.labelLg
        }

        ThemedTextField {
            id: nameField
            objectName: "nameField"
            Layout.fillWidth: true
            theme: dialog.theme
            font.family: dialog.theme.fontFamily
            font.pixelSize: dialog.type.bodySm
            placeholderText: dialog.placeholder
            onAccepted: dialog._confirm()
        }

        Text {
            objectName: "errorText"
            Layout.fillWidth: true
            visible: text !== ""
            text: dialog.errorText
            color: dialog.theme.danger
            font.family: dialog.theme.fontFamily
            font.pixelSize: dialog.type.labelMd
            wrapMode: Text.WordWrap
        }
    }
}
