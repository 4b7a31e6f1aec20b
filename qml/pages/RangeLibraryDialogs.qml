// The dialogs of the range library: saving the current range, adding a folder, deleting the selection,
// importing a range file, and in developer mode exporting the bundled data and clearing overrides. The lists and
// the messages belong to the library store; these dialogs ask the user and hand the answers to it.
import QtQuick
import QtQuick.Dialogs
import QtQuick.Layouts
import Kelvane
import "RangeLibraryTree.js" as Tree

Item {
    id: dialogs

    property var theme: null
    property var type: null
    // The page's RangeLibraryStore.
    property var library: null

    // The player the open dialog works for.
    property string _player: "oop"
    property int _clearCategory: 0

    readonly property int _dialogWidth: 420
    readonly property var _exportFilters: [qsTranslate("ProjectPage", "JSON (*.json)"),
        qsTranslate("ProjectPage", "All Files (*)")]
    readonly property string _exportSuffix: "json"

    function _seat(player) {
        return player === "ip" ? qsTranslate("ProjectPage", "IP") : qsTranslate("ProjectPage", "OOP")
    }

    function openSaveRange(player) {
        _player = player
        library.beginSaveRange(player)
        saveDialog.name = ""
        saveDialog.open()
    }

    function openAddFolder(player) {
        _player = player
        library._addFolderError = ""
        folderDialog.name = ""
        folderDialog.open()
    }

    function openDeleteSelected(player) {
        _player = player
        if (library.canDeleteSelected(player))
            deleteDialog.open()
    }

    function openImport(focusPlayer) {
        library.beginImport(focusPlayer)
        importNameDialog.close()
        importFileDialog.open()
    }

    // After the file dialog: the name dialog opens whatever the outcome, showing a failure if there was one.
    function _importFrom(fileUrl) {
        library._readImportFile(fileUrl)
        importNameDialog.name = library._importName
        importNameDialog.open()
    }

    function openExportStandard() {
        exportStandardDialog.open()
    }

    function openExportPopulation() {
        exportPopulationDialog.open()
    }

    function openClearOverrides(player, category) {
        _player = player
        _clearCategory = category
        clearOverridesDialog.open()
    }

    function _saveRange(name) {
        if (library.commitSaveRange(_player, name))
            saveDialog.close()
    }

    function _addFolder(name) {
        if (library.commitAddFolder(_player, name))
            folderDialog.close()
    }

    function _importRange(name) {
        if (library.commitImportRange(name))
            importNameDialog.close()
    }

    function _confirmDelete() {
        library.deleteSelectedItem(_player)
        deleteDialog.close()
    }

    function _selectedName() {
        const node = library ? library.selectedNode(_player) : null
        return node ? node.name : ""
    }

    function _deleteQuestion() {
        const node = library ? library.selectedNode(_player) : null
        return Tree.isFolder(node) ? "Are you sure you want to delete this folder?"
                                   : "Are you sure you want to delete this range?"
    }

    function _deleteConsequence() {
        const node = library ? library.selectedNode(_player) : null
        const count = Tree.countDescendants(node)
        return count > 0 ? qsTranslate("ProjectPage", "This will also delete %1 range(s). This cannot be undone.")
                               .arg(count)
                         : qsTranslate("ProjectPage", "This cannot be undone.")
    }

    RangeLibraryNameDialog {
        id: saveDialog
        objectName: "saveRangeDialog"
        theme: dialogs.theme
        type: dialogs.type
        title: dialogs._player === "ip" ? qsTranslate("ProjectPage", "Save IP range")
                                        : qsTranslate("ProjectPage", "Save OOP range")
        label: qsTranslate("ProjectPage", "Name this range:")
        placeholder: qsTranslate("ProjectPage", "e.g., BTN vs BB (default)")
        confirmText: qsTranslate("ProjectPage", "Save")
        errorText: dialogs.library ? dialogs.library._saveRangeError : ""
        onConfirmed: name => dialogs._saveRange(name)
    }

    RangeLibraryNameDialog {
        id: folderDialog
        objectName: "addFolderDialog"
        theme: dialogs.theme
        type: dialogs.type
        title: dialogs._player === "ip" ? qsTranslate("ProjectPage", "Add folder (IP)")
                                        : qsTranslate("ProjectPage", "Add folder (OOP)")
        label: qsTranslate("ProjectPage", "Folder name:")
        placeholder: qsTranslate("ProjectPage", "e.g., BTN vs BB")
        confirmText: qsTranslate("ProjectPage", "Add")
        errorText: dialogs.library ? dialogs.library._addFolderError : ""
        onConfirmed: name => dialogs._addFolder(name)
    }

    RangeLibraryNameDialog {
        id: importNameDialog
        objectName: "importRangeDialog"
        theme: dialogs.theme
        type: dialogs.type
        title: qsTranslate("ProjectPage", "Import Range")
        label: qsTranslate("ProjectPage", "Name this range:")
        placeholder: qsTranslate("ProjectPage", "e.g., BTN open (custom)")
        confirmText: qsTranslate("ProjectPage", "Import")
        errorText: dialogs.library ? dialogs.library._importError : ""
        confirmEnabled: name.trim() !== "" && !!dialogs.library && dialogs.library._importText.trim() !== ""
        focusOnOpen: errorText === ""
        onConfirmed: name => dialogs._importRange(name)
    }

    SetupDialog {
        id: deleteDialog
        objectName: "deleteRangeDialog"
        anchors.centerIn: parent
        width: dialogs._dialogWidth
        theme: dialogs.theme
        type: dialogs.type
        modal: true
        title: qsTranslate("ProjectPage", "Delete range")
        footerButtons: [
            SecondaryButton {
                objectName: "cancelButton"
                theme: dialogs.theme
                text: qsTranslate("ProjectPage", "Cancel")
                onClicked: deleteDialog.close()
            },
            SecondaryButton {
                objectName: "confirmButton"
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
                objectName: "deleteQuestion"
                Layout.fillWidth: true
                text: deleteDialog.visible ? dialogs._deleteQuestion() : ""
                color: dialogs.theme.text
                font.family: dialogs.theme.fontFamily
                font.pixelSize: dialogs.type.bodySm
                wrapMode: Text.WordWrap
            }

            Text {
                objectName: "deleteName"
                Layout.fillWidth: true
                text: deleteDialog.visible ? "“" + dialogs._selectedName() + "”" : ""
                color: dialogs.theme.text
                font.family: dialogs.theme.fontFamily
                font.pixelSize: dialogs.type.bodySm
                font.weight: dialogs.type.weightSemibold
                elide: Text.ElideRight
            }

            Text {
                objectName: "deleteConsequence"
                Layout.fillWidth: true
                text: deleteDialog.visible ? dialogs._deleteConsequence() : ""
                color: dialogs.theme.textMuted
                font.family: dialogs.theme.fontFamily
                font.pixelSize: dialogs.type.labelMd
                wrapMode: Text.WordWrap
            }
        }
    }

    FileDialog {
        id: importFileDialog
        objectName: "importFileDialog"
        title: qsTranslate("ProjectPage", "Import Range")
        fileMode: FileDialog.OpenFile
        nameFilters: [qsTranslate("ProjectPage", "Range text (*.txt)"), qsTranslate("ProjectPage", "All Files (*)")]
        onAccepted: dialogs._importFrom(selectedFile)
    }

    FileDialog {
        id: exportStandardDialog
        objectName: "exportStandardDialog"
        title: qsTranslate("ProjectPage", "Export Standard Ranges")
        fileMode: FileDialog.SaveFile
        nameFilters: dialogs._exportFilters
        defaultSuffix: dialogs._exportSuffix
        onAccepted: dialogs.library.exportStandardTo(selectedFile)
    }

    FileDialog {
        id: exportPopulationDialog
        objectName: "exportPopulationDialog"
        title: qsTranslate("ProjectPage", "Export Population Ranges")
        fileMode: FileDialog.SaveFile
        nameFilters: dialogs._exportFilters
        defaultSuffix: dialogs._exportSuffix
        onAccepted: dialogs.library.exportPopulationTo(selectedFile)
    }

    MessageDialog {
        id: clearOverridesDialog
        objectName: "clearOverridesDialog"
        title: dialogs._clearCategory === 1 ? qsTranslate("ProjectPage", "Clear population overrides")
                                            : qsTranslate("ProjectPage", "Clear standard overrides")
        text: dialogs._clearCategory === 1
              ? qsTranslate("ProjectPage", "Clear all locally overridden population ranges for %1?")
                .arg(dialogs._seat(dialogs._player))
              : qsTranslate("ProjectPage", "Clear all locally overridden standard ranges for %1?")
                .arg(dialogs._seat(dialogs._player))
        buttons: MessageDialog.Ok | MessageDialog.Cancel
        onAccepted: dialogs.library.clearOverrides(dialogs._player, dialogs._clearCategory)
    }
}
