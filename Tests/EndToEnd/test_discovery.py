"""Names and folders of the configuration, and the remembered name."""

from harness import machine
from harness.scenario import Scenario, configuration, slide


class Discovery(Scenario):
    def test_managed_preferences_win_over_application_support(self):
        self.install(configuration(slide("Local")))
        managed = self.install(configuration(slide("Delivered")), place=machine.MANAGED)
        _, screen = self.velmar()
        screen.wait_for_text("Delivered")
        self.wait_for_message(f"Found configuration file at {managed}")

    def test_a_dangling_link_in_the_first_place_counts_as_not_there(self):
        (machine.MANAGED / "Velmar.plist").symlink_to("/nowhere")
        self.install(configuration(slide("Local")))
        _, screen = self.velmar()
        screen.wait_for_text("Local")

    def test_says_both_places_when_there_is_no_file(self):
        process, screen = self.velmar("-c", "missing")
        self.dismiss_refusal(process, screen)
        self.assertIn("A problem occurred while retrieving configuration: Internal error: Unable to build the path to "
                      f"the configuration file missing.plist at {machine.MANAGED} or {machine.SUPPORT}",
                      self.messages())

    def test_takes_the_name_that_was_given(self):
        for arguments, name in [(("-c", "first"), "first.plist"), (("-c", "first.plist"), "first.plist"),
                                (("--config", "first"), "first.plist"), (("-c", "deep/first"), "deep/first.plist"),
                                (("-c", "first.PLIST"), "first.PLIST.plist"),
                                (("--config", "other", "-c", "first"), "first.plist")]:
            with self.subTest(arguments=arguments):
                self.setUp()
                self.install(configuration(slide("Default")))
                self.install(configuration(slide("Named")), name=name)
                process, screen = self.velmar(*arguments)
                screen.wait_for_text("Named")
                process.close()

    def test_remembers_the_name_only_with_save(self):
        self.install(configuration(slide("Default")))
        self.install(configuration(slide("Named")), name="first.plist")
        # A name is stored only with --save, and --save alone stores nothing.
        for arguments, text in [(("-c", "first"), "Named"), (("--save",), "Default"), ((), "Default"),
                                (("--save", "-c", "first"), "Named"), ((), "Named"), (("-c", "Velmar"), "Default"),
                                ((), "Named")]:
            with self.subTest(arguments=arguments):
                process, screen = self.velmar(*arguments)
                screen.wait_for_text(text)
                process.close()

    def test_an_option_without_its_value_stops_at_once(self):
        self.install(configuration(slide("Default")))
        for arguments, option in [(("-c",), "-c"), (("--config",), "--config"), (("--save", "-c"), "-c")]:
            with self.subTest(arguments=arguments):
                process, _ = self.velmar(*arguments)
                self.assertGreater(process.wait(), 0)
                self.assertEqual(f"The option '{option}' needs a value\n", process.errors())
