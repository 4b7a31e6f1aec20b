// One row of the range library's list: a folder or a range, indented by its depth, with its icon and its shown
// name. A name too long for the column is cut short and shows whole as a tooltip.
import QtQuick
import Kelvane

Item {
    id: row

    property var theme: null
    property var type: null
    // One row of the library's list: id, kind, name, displayName, depth, and value for a range.
    property var entry: ({})
    property bool selected: false
    property bool open: false

    readonly property Theme _darkTheme: Theme {}
    readonly property var _theme: theme ? theme : _darkTheme
    readonly property Typography _defaultType: Typography {}
    readonly property var _type: type ? type : _defaultType
    readonly property bool isFolder: entry.kind === "folder"
    readonly property int _rowHeight: 26
    readonly property int _baseIndent: 10
    readonly property int _depthIndent: 14
    readonly property int _iconSize: 14
    readonly property int _iconGap: 6
    readonly property real _closedFolderOpacity: 0.75
    readonly property real _selectedFillAlpha: 0.15

    signal clicked()

    function _indent() {
        return _baseIndent + _depthIndent * (entry.depth || 0)
    }

    function _fillColor() {
        if (selected)
            return _theme.withOpacity(_theme.accent, _selectedFillAlpha)
        return area.containsMouse ? _theme.surfaceHover : "transparent"
    }

    function _iconColor() {
        if (selected)
            return _theme.accent
        return isFolder ? _theme.gold : _theme.textMuted
    }

    implicitHeight: _rowHeight

    Rectangle {
        anchors.fill: parent
        radius: row._theme.radiusXs
        color: row._fillColor()
    }

    Icon {
        id: icon
        objectName: "icon"
        x: row._indent()
        anchors.verticalCenter: parent.verticalCenter
        size: row._iconSize
        name: row.isFolder ? "folder-open" : "file-text"
        color: row._iconColor()
        iconOpacity: row.isFolder && !row.open ? row._closedFolderOpacity : 1.0
    }

    Text {
        id: nameText
        objectName: "name"
        anchors.left: icon.right
        anchors.leftMargin: row._iconGap
        anchors.right: parent.right
        anchors.rightMargin: row._theme.spaceXs
        anchors.verticalCenter: parent.verticalCenter
        text: row.entry.displayName !== undefined ? row.entry.displayName : ""
        elide: Text.ElideRight
        color: row.selected ? row._theme.text : row._theme.textMuted
        font.family: row._theme.fontFamily
        font.pixelSize: row._type.bodySm
        font.weight: row.selected || row.open ? row._type.weightSemibold : row._type.weightRegular
    }

    RangeLibraryToolTip {
        objectName: "nameToolTip"
        theme: row._theme
        type: row._type
        visible: area.containsMouse && nameText.truncated
        text: nameText.text
    }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: row.clicked()
    }
}
