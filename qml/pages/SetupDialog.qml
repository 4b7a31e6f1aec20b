// A dialog of the Setup page in the theme's colours: the title on top, the content, and the buttons given in
// `footerButtons` at the right of the foot. It lives in the window's overlay, so x and y are window coordinates.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

Dialog {
    id: dialog

    property var theme: null
    property var type: null
    property alias footerButtons: footerRow.data

    readonly property real _dimAlpha: 0.6

    parent: Overlay.overlay
    padding: theme.spaceLg
    topPadding: theme.spaceSm

    header: Item {
        implicitWidth: titleText.implicitWidth + 2 * dialog.theme.spaceLg
        implicitHeight: titleText.implicitHeight + dialog.theme.spaceLg + dialog.theme.spaceSm

        Text {
            id: titleText
            objectName: "dialogTitle"
            x: dialog.theme.spaceLg
            y: dialog.theme.spaceLg
            text: dialog.title
            color: dialog.theme.text
            font.family: dialog.theme.fontFamily
            font.pixelSize: dialog.type.headingSm
            font.weight: dialog.type.weightSemibold
        }
    }

    footer: Item {
        implicitWidth: footerRow.implicitWidth + 2 * dialog.theme.spaceLg
        implicitHeight: footerRow.implicitHeight + dialog.theme.spaceLg

        RowLayout {
            id: footerRow
            anchors.right: parent.right
            anchors.rightMargin: dialog.theme.spaceLg
            anchors.top: parent.top
            spacing: dialog.theme.spaceSm
        }
    }

    background: Rectangle {
        radius: dialog.theme.radiusMd
        color: dialog.theme.surface
        border.color: dialog.theme.stroke
        border.width: 1
    }

    Overlay.modal: Rectangle {
        color: dialog.theme.withOpacity(dialog.theme.bg0, dialog._dimAlpha)
    }
}
