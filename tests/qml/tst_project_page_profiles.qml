import QtQuick
import QtTest
import Qt.labs.settings
import Kelvane

// TestCase itself is invisible, so the pages under test are placed in this visible item.
Item {
    id: root

    width: 1600
    height: 1000

    TestCase {
        id: testCase

        name: "ProjectPageProfiles"
        when: windowShown

        readonly property var snapshotKeys: [
            "starting_pot", "effective_stack", "rake_percent", "rake_cap", "target_exploitability_pct",
            "max_iterations", "starting_street",
            "oop_flop_bet_sizes", "oop_turn_bet_sizes", "oop_river_bet_sizes",
            "oop_flop_raise_sizes", "oop_turn_raise_sizes", "oop_river_raise_sizes",
            "oop_flop_add_all_in", "oop_turn_add_all_in", "oop_river_add_all_in",
            "oop_flop_dont_donk", "oop_turn_dont_donk", "oop_river_dont_donk",
            "ip_flop_bet_sizes", "ip_turn_bet_sizes", "ip_river_bet_sizes",
            "ip_flop_raise_sizes", "ip_turn_raise_sizes", "ip_river_raise_sizes",
            "ip_flop_add_all_in", "ip_turn_add_all_in", "ip_river_add_all_in",
            "oop_add_all_in_jam_threshold_enabled", "oop_add_all_in_jam_threshold_pct",
            "ip_add_all_in_jam_threshold_enabled", "ip_add_all_in_jam_threshold_pct"
        ]

        Settings {
            id: store
            category: "settings_profiles"
        }

        Component {
            id: standInComponent

            StandInController {}
        }

        Component {
            id: shellComponent

            AppShell {
                width: root.width
                height: root.height
            }
        }

        Component {
            id: pageComponent

            ProjectPage {
                width: root.width
                height: root.height
            }
        }

        // Every test starts from an empty store.
        function init() {
            store.setValue("profilesJson", "")
            store.sync()
        }

        function makePage(properties) {
            const page = createTemporaryObject(pageComponent, root, properties || {})
            verify(page !== null)
            waitForRendering(page)
            return page
        }

        function setupOfDefaults() {
            const controller = createTemporaryObject(standInComponent, root, {})
            const shell = createTemporaryObject(shellComponent, root, {controller: controller})
            shell.resetToDefaults()
            shell.navIndex = 1
            const page = findChild(shell, "projectPage")
            waitForRendering(page)
            return {shell: shell, page: page}
        }

        function part(parent, name) {
            const found = findChild(parent, name)
            verify(found !== null, "no " + name)
            return found
        }

        function dialog(page, name) {
            return part(page, name)
        }

        function storedProfiles() {
            return JSON.parse(String(store.value("profilesJson", "")))
        }

        function saveThroughDialog(page, name) {
            mouseClick(part(page, "saveSettingsButton"))
            const save = dialog(page, "saveProfileDialog")
            tryVerify(() => save.opened, 2000, "the save dialog opens")
            const field = part(save.contentItem, "profileNameField")
            verify(field.activeFocus, "the name field takes focus")
            compare(field.text, "", "the name starts empty")
            for (const ch of name)
                keyClick(ch)
            mouseClick(part(save.footer, "saveProfileButton"))
            tryVerify(() => !save.visible, 2000, "saving closes the dialog")
        }

        function openLoad(page) {
            mouseClick(part(page, "loadSettingsButton"))
            const load = dialog(page, "loadProfileDialog")
            tryVerify(() => load.opened, 2000, "the load dialog opens")
            return load
        }

        // A row of the profile list, once the list has been laid out.
        function profileRow(load, index) {
            let row = null
            tryVerify(() => {
                row = findChild(load.contentItem, "profileRow_" + index)
                return row !== null && row.width > 0
            }, 2000, "row " + index + " is shown")
            return row
        }

        // ---- Snapshot

        function test_snapshotHasTheThirtyTwoKeys() {
            const s = setupOfDefaults()
            const snapshot = s.page.currentSettingsSnapshot()
            compare(Object.keys(snapshot).sort(), snapshotKeys.slice().sort())
            compare(Object.keys(snapshot).length, 32)
            compare(snapshot.starting_pot, 180)
            compare(snapshot.effective_stack, 910)
            compare(snapshot.rake_percent, 5)
            compare(snapshot.rake_cap, 30)
            compare(snapshot.target_exploitability_pct, 0.5, "the target is kept as a percentage")
            compare(snapshot.max_iterations, 400)
            compare(snapshot.starting_street, "flop")
            compare(snapshot.oop_flop_bet_sizes, "52")
            compare(snapshot.ip_river_bet_sizes, "70")
            compare(snapshot.ip_turn_raise_sizes, "45")
            compare(snapshot.oop_river_dont_donk, false)
            compare(snapshot.ip_add_all_in_jam_threshold_pct, 0)
            verify(snapshot.board === undefined && snapshot.oop_range === undefined, "no board and no ranges")
        }

        function test_snapshotRoundTrips() {
            const s = setupOfDefaults()
            s.shell.applyProjectState({oopTurnDontDonk: true, ipFlopAddAllIn: true, ipAddAllInIfJamLtEnabled: true,
                                       ipAddAllInIfJamLtPct: 35.5, oopRiverRaiseSizesText: "60, 120"})
            const snapshot = s.page.currentSettingsSnapshot()
            s.shell.resetToNewProject()
            s.page.applySettingsSnapshot(snapshot)
            compare(s.shell.startingPot, 180)
            compare(s.shell.oopTurnDontDonk, true)
            compare(s.shell.ipFlopAddAllIn, true)
            compare(s.shell.ipAddAllInIfJamLtEnabled, true)
            compare(s.shell.ipAddAllInIfJamLtPct, 35.5)
            compare(s.shell.oopRiverRaiseSizesText, "60, 120")
            compare(s.shell.ipFlopBetSizesText, "52")
            compare(s.shell.boardText, "", "a profile carries no board")
        }

        // ---- Applying old and partial profiles

        function test_oldAbsoluteTargetBecomesAPercentage() {
            const s = setupOfDefaults()
            s.page.applySettingsSnapshot({starting_pot: 180, target_exploitability: 1.8})
            compare(s.shell.targetExploitability, 1.0)
        }

        function test_oldTargetAgainstTheNewPot() {
            const page = makePage({startingPot: 100})
            page.applySettingsSnapshot({starting_pot: 200, target_exploitability: 3})
            compare(page.targetExploitability, 1.5, "the pot just applied counts")
            page.applySettingsSnapshot({starting_pot: 0, target_exploitability: 0.4})
            compare(page.startingPot, 0)
            compare(page.targetExploitability, 0.4, "no pot to divide by: taken unchanged")
            page.applySettingsSnapshot({starting_pot: 100, target_exploitability: 9, target_exploitability_pct: 0.2})
            compare(page.targetExploitability, 0.2, "the percentage wins")
        }

        function test_nullSnapshotDoesNothing() {
            const s = setupOfDefaults()
            const before = s.shell.exportProjectState()
            s.page.applySettingsSnapshot(null)
            s.page.applySettingsSnapshot(undefined)
            compare(s.shell.exportProjectState(), before)
        }

        function test_absentGameValuesStayAbsentSizesReset() {
            const s = setupOfDefaults()
            s.shell.applyProjectState({oopFlopAddAllIn: true, oopRiverDontDonk: true, ipAddAllInIfJamLtEnabled: true,
                                       ipAddAllInIfJamLtPct: 20})
            s.page.applySettingsSnapshot({oop_turn_bet_sizes: "33", ip_river_add_all_in: true})
            compare(s.shell.startingPot, 180, "game values are kept when absent")
            compare(s.shell.rakePercent, 5)
            compare(s.shell.maxIterations, 400)
            compare(s.shell.targetExploitability, 0.5)
            compare(s.shell.oopTurnBetSizesText, "33")
            compare(s.shell.oopFlopBetSizesText, "", "sizes are reset by absence")
            compare(s.shell.ipRiverRaiseSizesText, "")
            compare(s.shell.oopFlopAddAllIn, false, "switches are reset by absence")
            compare(s.shell.oopRiverDontDonk, false)
            compare(s.shell.ipRiverAddAllIn, true)
            compare(s.shell.ipAddAllInIfJamLtEnabled, false, "the jam switch is reset by absence")
            compare(s.shell.ipAddAllInIfJamLtPct, 20, "the jam percentage is kept when absent")
        }

        function test_oldSharedJamKeysSetBothPlayers() {
            const page = makePage()
            page.applySettingsSnapshot({add_all_in_jam_threshold_enabled: true, add_all_in_jam_threshold_pct: 40,
                                        oop_add_all_in_jam_threshold_enabled: false,
                                        ip_add_all_in_jam_threshold_pct: 10})
            compare(page.oopAddAllInIfJamLtEnabled, true)
            compare(page.ipAddAllInIfJamLtEnabled, true)
            compare(page.oopAddAllInIfJamLtPct, 40)
            compare(page.ipAddAllInIfJamLtPct, 40, "the old shared value wins")
            page.applySettingsSnapshot({oop_add_all_in_jam_threshold_enabled: true,
                                        ip_add_all_in_jam_threshold_pct: 12.5})
            compare(page.oopAddAllInIfJamLtEnabled, true)
            compare(page.ipAddAllInIfJamLtEnabled, false)
            compare(page.oopAddAllInIfJamLtPct, 40)
            compare(page.ipAddAllInIfJamLtPct, 12.5)
        }

        function test_streetFromAProfileWaitsForTheBoard() {
            const s = setupOfDefaults()
            s.page.applySettingsSnapshot({starting_street: "river", max_iterations: 900})
            compare(s.shell.startingStreet, "river", "not inferred again")
            compare(s.shell.maxIterations, 900)
            s.shell.boardText = "QsJh2h7c"
            compare(s.shell.startingStreet, "turn", "the next board change decides")
        }

        function test_badValuesInAProfileAreSkipped() {
            const page = makePage({startingPot: 120})
            page.applySettingsSnapshot({starting_pot: "lots", rake_cap: null, oop_flop_bet_sizes: 75})
            compare(page.startingPot, 120)
            compare(page.rakeCap, 0)
            compare(page.oopFlopBetSizesText, "75")
        }

        // ---- Names and sanitising

        function test_uniqueProfileName() {
            const page = makePage()
            compare(page._uniqueProfileName([], "  A  "), "A")
            compare(page._uniqueProfileName([{name: "A"}], "A"), "A (2)")
            compare(page._uniqueProfileName([{name: "A"}, {name: "A (2)"}], " A"), "A (3)")
            compare(page._uniqueProfileName([{name: "A"}, {name: "A (3)"}], "A"), "A (2)")
            compare(page._uniqueProfileName([{name: "a"}], "A"), "A")
        }

        function test_sanitizeSettingsProfiles() {
            const page = makePage()
            compare(page._sanitizeSettingsProfiles(null), [])
            compare(page._sanitizeSettingsProfiles({name: "A"}), [])
            const result = page._sanitizeSettingsProfiles([
                null,
                {id: "n_1", name: "  Kept  ", createdAt: "2024-01-02T03:04:05.000Z", data: {starting_pot: 5}},
                {id: "n_2", name: "   "},
                {name: "No id"},
                {id: "  ", name: "Blank id", data: [1, 2]}
            ])
            compare(result.length, 3)
            compare(result[0], {id: "n_1", name: "Kept", createdAt: "2024-01-02T03:04:05.000Z",
                                data: {starting_pot: 5}})
            compare(result[1].name, "No id")
            verify(/^n_[0-9a-z]+_[0-9a-z]+$/.test(result[1].id), result[1].id)
            compare(result[1].createdAt, "")
            compare(result[1].data, {})
            verify(result[2].id.trim() !== "", "a blank id gets a new one")
            compare(result[2].data, {})
        }

        // ---- Store

        function test_corruptStoreMeansNoProfilesUntilTheNextChange() {
            store.setValue("profilesJson", "{not json")
            store.sync()
            const page = makePage()
            compare(page.settingsProfiles, [])
            compare(String(store.value("profilesJson", "")), "{not json", "reading alone does not overwrite")
            saveThroughDialog(page, "Fresh")
            compare(storedProfiles().length, 1)
            compare(storedProfiles()[0].name, "Fresh")
        }

        function test_storedProfilesAreReadAndSanitised() {
            store.setValue("profilesJson", JSON.stringify([{id: "n_a", name: " One ", data: {rake_cap: 7}},
                                                           {name: ""}]))
            store.sync()
            const page = makePage()
            compare(page.settingsProfiles.length, 1)
            compare(page.settingsProfiles[0].name, "One")
        }

        // ---- Dialogs

        function test_savingTheSameNameTwice() {
            const s = setupOfDefaults()
            saveThroughDialog(s.page, "A")
            saveThroughDialog(s.page, "A")
            compare(s.page.settingsProfiles.map(p => p.name), ["A", "A (2)"])
            const stored = storedProfiles()
            compare(stored.map(p => p.name), ["A", "A (2)"])
            compare(stored[0].data.starting_pot, 180)
            compare(Object.keys(stored[0].data).length, 32)
            verify(!isNaN(Date.parse(stored[0].createdAt)), "an ISO time: " + stored[0].createdAt)
            verify(stored[0].id !== stored[1].id)
        }

        function test_saveDialogTexts() {
            const page = makePage()
            mouseClick(part(page, "saveSettingsButton"))
            const save = dialog(page, "saveProfileDialog")
            tryVerify(() => save.opened, 2000)
            compare(save.title, "Save Settings Profile")
            compare(part(save.contentItem, "profileNameField").placeholderText, "e.g., 100bb rake-free (fast)")
            const button = part(save.footer, "saveProfileButton")
            verify(!button.enabled, "no name, no saving")
            keyClick(Qt.Key_Space)
            verify(!button.enabled, "a blank name is no name")
            keyClick(Qt.Key_Return)
            compare(page._saveProfileError, "Please enter a name.")
            verify(part(save.contentItem, "saveProfileError").visible)
            verify(save.opened, "the dialog stays open")
            compare(page.settingsProfiles.length, 0)
            keyClick(Qt.Key_B)
            verify(button.enabled)
            keyClick(Qt.Key_Return)
            tryVerify(() => !save.visible, 2000, "Return saves")
            compare(page.settingsProfiles.map(p => p.name), ["b"])
            mouseClick(part(page, "saveSettingsButton"))
            tryVerify(() => save.opened, 2000)
            compare(page._saveProfileError, "", "the error is cleared on opening")
            compare(part(save.contentItem, "profileNameField").text, "")
            mouseClick(part(save.footer, "cancelSaveButton"))
            tryVerify(() => !save.visible, 2000)
        }

        function test_loadDialogWithoutProfiles() {
            const page = makePage()
            const load = openLoad(page)
            compare(load.title, "Load Settings Profile")
            verify(part(load.contentItem, "noProfilesText").visible)
            verify(!part(load.footer, "loadProfileButton").enabled)
            verify(!part(load.footer, "deleteProfileButton").enabled)
            mouseClick(part(load.footer, "cancelLoadButton"))
            tryVerify(() => !load.visible, 2000)
        }

        function test_loadingAProfile() {
            const s = setupOfDefaults()
            saveThroughDialog(s.page, "Deep")
            s.shell.resetToNewProject()
            s.shell.applyProjectState({startingPot: 50, oopFlopBetSizesText: "99"})
            const load = openLoad(s.page)
            verify(!part(load.contentItem, "noProfilesText").visible)
            mouseClick(profileRow(load, 0))
            compare(s.page._loadProfileSelectedId, s.page.settingsProfiles[0].id)
            mouseClick(part(load.footer, "loadProfileButton"))
            tryVerify(() => !load.visible, 2000, "loading closes the dialog")
            compare(s.shell.startingPot, 180)
            compare(s.shell.oopFlopBetSizesText, "52")
            compare(s.shell.boardText, "", "the board stays as it was")
        }

        function test_doubleClickLoads() {
            const page = makePage()
            page.settingsProfiles = [{id: "n_x", name: "Short", createdAt: "", data: {starting_pot: 77}}]
            const load = openLoad(page)
            mouseDoubleClickSequence(profileRow(load, 0))
            tryVerify(() => !load.visible, 2000)
            compare(page.startingPot, 77)
        }

        function test_loadingAVanishedProfile() {
            const page = makePage()
            page.settingsProfiles = [{id: "n_x", name: "Gone", createdAt: "", data: {}}]
            const load = openLoad(page)
            mouseClick(profileRow(load, 0))
            page.settingsProfiles = []
            page._loadProfileSelectedId = "n_x"
            mouseClick(part(load.footer, "loadProfileButton"))
            compare(page._loadProfileError, "Please select a profile.")
            verify(load.opened, "the dialog stays")
            mouseClick(part(load.footer, "cancelLoadButton"))
            tryVerify(() => !load.visible, 2000)
            openLoad(page)
            compare(page._loadProfileError, "", "opening clears the error")
            compare(page._loadProfileSelectedId, "", "and the selection")
            mouseClick(part(load.footer, "cancelLoadButton"))
        }

        function test_deletingAProfile() {
            const page = makePage()
            page.settingsProfiles = [{id: "n_1", name: "First", createdAt: "", data: {}},
                                     {id: "n_2", name: "Second", createdAt: "", data: {}}]
            const load = openLoad(page)
            const deleteButton = part(load.footer, "deleteProfileButton")
            verify(deleteButton.danger)
            mouseClick(profileRow(load, 1))
            mouseClick(deleteButton)
            const confirm = dialog(page, "deleteProfileDialog")
            tryVerify(() => confirm.opened, 2000)
            compare(confirm.title, "Delete settings profile")
            compare(part(confirm.contentItem, "deleteProfileName").text, "“Second”")
            mouseClick(part(confirm.footer, "cancelDeleteButton"))
            tryVerify(() => !confirm.visible, 2000)
            compare(page.settingsProfiles.length, 2, "cancel keeps it")
            mouseClick(deleteButton)
            tryVerify(() => confirm.opened, 2000)
            mouseClick(part(confirm.footer, "confirmDeleteButton"))
            tryVerify(() => !confirm.visible, 2000)
            compare(page.settingsProfiles.map(p => p.name), ["First"])
            compare(page._loadProfileSelectedId, "", "the deleted profile is no longer selected")
            verify(load.opened, "the load dialog stays open behind")
            compare(storedProfiles().map(p => p.name), ["First"])
            mouseClick(part(load.footer, "cancelLoadButton"))
            tryVerify(() => !load.visible, 2000)
        }
    }
}
