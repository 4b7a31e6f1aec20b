// One level of the walked tree: a chance deal between two rules, or a decision's actions (all of them while
// undecided, else the chosen one). Clicking the leaf acts on it; clicking an earlier level goes back to it.
import QtQuick
import QtQuick.Layouts
import Kelvane

ColumnLayout {
    id: root

    property var page: null
    property var theme: null
    property var type: null
    property int level: 0
    property int levelNode: 0
    property int selectedAction: -1
    property bool isLeaf: false

    readonly property var _meta: page._metaForNode(levelNode)
    readonly property var _actions: page._actionsForNode(levelNode)
    readonly property bool _isChance: _meta.nodeType === "chance"
    readonly property bool _undecided: selectedAction < 0
    readonly property real _stripAlpha: 0.10
    readonly property int _ruleHeight: 1

    function _dealLabel() {
        const street = _meta.chanceDeal === "river" ? qsTranslate("ResultsPage", "River")
                                                     : qsTranslate("ResultsPage", "Turn")
        return qsTranslate("ResultsPage", "Deal %1").arg(street)
    }

    function _chanceCard() {
        const override = page.chanceCardDisplayOverrideByNode[String(levelNode)]
        if (override)
            return override
        const action = page._safeActionAt(_actions, selectedAction)
        return action ? String(action.name) : ""
    }

    function _childMeta(action) {
        return action && action.childIndex >= 0 ? page._metaForNode(action.childIndex) : ({})
    }

    function _shownPot(action) {
        const child = _childMeta(action)
        return Number(child.pot !== undefined ? child.pot : _meta.pot) || 0
    }

    function _leafEv(index) {
        if (!isLeaf || page.currentNodeIndex !== levelNode)
            return 0
        const stats = page._safeActionAt(page.currentActions, index)
        const ev = stats ? Number(stats.ev) : NaN
        return isFinite(ev) ? ev : 0
    }

    function _clickAction(index) {
        if (isLeaf && _undecided)
            page.selectActionAtLevel(level, index)
        else
            page.navigateToBreadcrumb(level)
    }

    function _clickChance() {
        if (!isLeaf || !_undecided)
            page.navigateToBreadcrumb(level)
        page.openChancePicker(level, levelNode)
    }

    spacing: theme.spaceXs

    Rectangle {
        objectName: "availableActionsStrip"
        visible: root.isLeaf && !root._isChance && root._meta.nodeType === "decision" && root._actions.length > 1
                 && root._undecided
        Layout.fillWidth: true
        implicitHeight: stripRow.implicitHeight + 2 * root.theme.spaceXs
        radius: root.theme.radiusSm
        color: root.theme.withOpacity(root.theme.info, root._stripAlpha)

        RowLayout {
            id: stripRow

            anchors.fill: parent
            anchors.leftMargin: root.theme.spaceSm
            anchors.rightMargin: root.theme.spaceSm
            spacing: root.theme.spaceXs

            ResultsText {
                theme: root.theme
                type: root.type
                text: qsTranslate("ResultsPage", "▼")
                color: root.theme.info
                font.pixelSize: root.type.labelSm
            }

            ResultsText {
                Layout.fillWidth: true
                theme: root.theme
                type: root.type
                text: qsTranslate("ResultsPage", "Available actions")
                color: root.theme.info
                font.pixelSize: root.type.labelMd
                font.weight: root.type.weightMedium
            }

            ResultsText {
                theme: root.theme
                type: root.type
                text: qsTranslate("ResultsPage", "%1 options").arg(root._actions.length)
                color: root.theme.textMuted
                font.pixelSize: root.type.labelSm
            }
        }
    }

    Rectangle {
        visible: root._isChance
        Layout.fillWidth: true
        implicitHeight: root._ruleHeight
        color: root.theme.stroke
    }

    TreeNode {
        objectName: "chanceNode"
        visible: root._isChance
        Layout.fillWidth: true
        theme: root.theme
        nodeType: "chance"
        player: root._isChance ? root._dealLabel() : ""
        action: root._isChance ? root._chanceCard() : ""
        pot: Number(root._meta.pot) || 0
        selected: root.isLeaf
        depth: root.level
        onClicked: root._clickChance()
    }

    Rectangle {
        visible: root._isChance
        Layout.fillWidth: true
        implicitHeight: root._ruleHeight
        color: root.theme.stroke
    }

    Repeater {
        model: root._isChance ? 0 : root._actions.length

        TreeNode {
            required property int index
            readonly property var _action: root._actions[index]
            readonly property var _child: root._childMeta(_action)

            objectName: "actionNode_" + root.level + "_" + index
            visible: root._undecided || index === root.selectedAction
            Layout.fillWidth: true
            theme: root.theme
            nodeType: "decision"
            player: root._meta.player || ""
            action: _action.name
            actionType: _action.actionType
            pot: root._shownPot(_action)
            frequency: Number(_action.frequency)
            ev: root._leafEv(index)
            selected: index === root.selectedAction
            hasChildren: _child.nodeType !== undefined && _child.nodeType !== "terminal"
            expanded: index === root.selectedAction && !root.isLeaf
            depth: root.level
            onClicked: root._clickAction(index)
            onToggleExpand: root._clickAction(index)
        }
    }
}
