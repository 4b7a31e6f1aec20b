// A themed drop-down of plain texts for the Solve page's compute settings; `displayText` of each entry comes
// from `labelFor`, so that internal words stay English while the list shows them translated.
import QtQuick
import QtQuick.Controls

ComboBox {
    id: box

    property var theme: null
    property var type: null
    property var labelFor: entry => String(entry)

    readonly property int _boxHeight: 36
    readonly property int _rowHeight: 32

    implicitHeight: _boxHeight
    leftPadding: theme.spaceMd
    rightPadding: theme.spaceMd + indicatorText.implicitWidth
    displayText: labelFor(currentText)

    background: Rectangle {
        radius: box.theme.radiusSm
        color: box.hovered ? box.theme.surfaceHover : box.theme.surface2
        border.color: box.activeFocus || box.popup.visible ? box.theme.strokeFocus : box.theme.stroke
        border.width: 1
    }

    contentItem: Text {
        text: box.displayText
        color: box.enabled ? box.theme.text : box.theme.textFaint
        font.family: box.theme.fontFamily
        font.pixelSize: box.type.bodyMd
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }

    indicator: Text {
        id: indicatorText

        x: box.width - width - box.theme.spaceMd
        anchors.verticalCenter: parent.verticalCenter
        text: qsTranslate("SolvePage", "▾")
        color: box.theme.textMuted
        font.pixelSize: box.type.bodyMd
    }

    delegate: ItemDelegate {
        id: row

        required property var modelData
        required property int index

        width: ListView.view ? ListView.view.width : box.width
        height: box._rowHeight
        highlighted: box.highlightedIndex === index

        contentItem: Text {
            text: box.labelFor(row.modelData)
            color: row.index === box.currentIndex ? box.theme.accent : box.theme.text
            font.family: box.theme.fontFamily
            font.pixelSize: box.type.bodyMd
            verticalAlignment: Text.AlignVCenter
        }

        background: Rectangle {
            color: row.highlighted ? box.theme.surfaceHover : "transparent"
        }
    }

    popup: Popup {
        y: box.height + box.theme.spaceXs
        width: box.width
        implicitHeight: Math.min(contentItem.implicitHeight + 2 * padding, box._rowHeight * 8)
        padding: box.theme.spaceXs

        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: box.popup.visible ? box.delegateModel : null
            currentIndex: box.highlightedIndex
        }

        background: Rectangle {
            radius: box.theme.radiusSm
            color: box.theme.surface
            border.color: box.theme.stroke
        }
    }
}
