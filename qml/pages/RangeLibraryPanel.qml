// The range library beside one player's matrix: the three categories, the chosen category's folder tree as an
// accordion list, and the actions at the foot. Choosing a range sets the player's range text; the lists and
// every edit belong to the library store, the dialogs to the page.
import QtQuick
import QtQuick.Layouts
import Kelvane

Item {
    id: panel

    property var theme: null
    property var type: null
    // The RangeLibraryStore of the page and the RangeLibraryDialogs that its actions open.
    property var library: null
    property var dialogs: null
    // "oop" or "ip".
    property string player: "oop"
    property string rangeText: ""

    readonly property Theme _darkTheme: Theme {}
    readonly property var _theme: theme ? theme : _darkTheme
    readonly property Typography _defaultType: Typography {}
    readonly property var _type: type ? type : _defaultType
    readonly property int category: library ? library[player + "RangeCategory"] : 2
    readonly property string selectedId: library ? library[player + "SelectedId"] : ""
    readonly property bool developerMode: !!library && library.developerMode
    readonly property bool _builtIn: category === 0 || category === 1
    readonly property int _gap: 4
    readonly property int _listInset: 4

    function _rows() {
        return library ? library.listModelFor(player) : []
    }

    function _isOpen(id) {
        return !!library && library[player + "OpenFolderIds"][id] === true
    }

    function _canDelete() {
        return !!library && library.canDeleteSelected(player)
    }

    function _canOverride() {
        return !!library && library.canOverride(player, rangeText)
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: panel._theme.spaceSm

        ColumnLayout {
            Layout.fillWidth: true
            spacing: panel._gap

            Repeater {
                model: 3

                RangeLibraryButton {
                    required property int index

                    objectName: "categoryButton_" + index
                    Layout.fillWidth: true
                    theme: panel._theme
                    type: panel._type
                    text: panel.library ? panel.library.categoryLabel(index) : ""
                    checked: panel.category === index
                    onClicked: panel.library.setRangeCategory(panel.player, index)
                }
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            radius: panel._theme.radiusSm
            color: panel._theme.bg2
            border.color: panel._theme.strokeLight
            border.width: 1

            ListView {
                id: list
                objectName: "rangeList"
                anchors.fill: parent
                anchors.margins: panel._listInset
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                model: panel._rows()
                delegate: RangeLibraryRow {
                    required property var modelData
                    required property int index

                    objectName: "rangeRow_" + index
                    width: ListView.view.width
                    theme: panel._theme
                    type: panel._type
                    entry: modelData
                    selected: modelData.id === panel.selectedId
                    open: panel._isOpen(modelData.id)
                    onClicked: panel.library.chooseRow(panel.player, modelData.id)
                }
            }

            Text {
                objectName: "emptyListText"
                anchors.centerIn: parent
                width: parent.width - 2 * panel._theme.spaceSm
                visible: list.count === 0
                text: qsTranslate("ProjectPage", "No ranges yet.")
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                color: panel._theme.textFaint
                font.family: panel._theme.fontFamily
                font.pixelSize: panel._type.bodySm
            }
        }

        Text {
            objectName: "presetLoadError"
            Layout.fillWidth: true
            visible: panel.category === 0 && text !== ""
            text: panel.library ? panel.library._presetLoadError : ""
            wrapMode: Text.WordWrap
            color: panel._theme.danger
            font.family: panel._theme.fontFamily
            font.pixelSize: panel._type.labelSm
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: panel._gap

            RangeLibraryButton {
                objectName: "saveRangeButton"
                Layout.fillWidth: true
                theme: panel._theme
                type: panel._type
                text: qsTranslate("ProjectPage", "Save current range…")
                enabled: panel.rangeText.trim() !== ""
                onClicked: panel.dialogs.openSaveRange(panel.player)
            }

            RangeLibraryButton {
                objectName: "addFolderButton"
                Layout.fillWidth: true
                theme: panel._theme
                type: panel._type
                text: qsTranslate("ProjectPage", "Add folder…")
                onClicked: panel.dialogs.openAddFolder(panel.player)
            }

            RangeLibraryButton {
                objectName: "deleteSelectedButton"
                Layout.fillWidth: true
                theme: panel._theme
                type: panel._type
                text: qsTranslate("ProjectPage", "Delete selected…")
                enabled: panel._canDelete()
                onClicked: panel.dialogs.openDeleteSelected(panel.player)
            }

            RangeLibraryButton {
                objectName: "importRangeButton"
                Layout.fillWidth: true
                theme: panel._theme
                type: panel._type
                text: qsTranslate("ProjectPage", "Import range…")
                onClicked: panel.dialogs.openImport(panel.player)
            }

            RangeLibraryButton {
                objectName: "overrideButton"
                Layout.fillWidth: true
                visible: panel.developerMode && panel._builtIn
                theme: panel._theme
                type: panel._type
                text: qsTranslate("ProjectPage", "Override")
                enabled: panel._canOverride()
                onClicked: panel.library.overrideSelectedRange(panel.player, panel.rangeText)
            }

            RangeLibraryButton {
                objectName: "exportStandardButton"
                Layout.fillWidth: true
                visible: panel.developerMode && panel.category === 0
                theme: panel._theme
                type: panel._type
                text: qsTranslate("ProjectPage", "Export standard…")
                onClicked: panel.dialogs.openExportStandard()
            }

            RangeLibraryButton {
                objectName: "exportPopulationButton"
                Layout.fillWidth: true
                visible: panel.developerMode && panel.category === 1
                theme: panel._theme
                type: panel._type
                text: qsTranslate("ProjectPage", "Export population…")
                onClicked: panel.dialogs.openExportPopulation()
            }

            RangeLibraryButton {
                objectName: "clearOverridesButton"
                Layout.fillWidth: true
                visible: panel.developerMode && panel._builtIn
                theme: panel._theme
                type: panel._type
                dangerFill: true
                text: qsTranslate("ProjectPage", "Clear overrides…")
                onClicked: panel.dialogs.openClearOverrides(panel.player, panel.category)
            }
        }
    }
}
