// SPDX-License-Identifier: MIT
package mero.rain;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.healthmarketscience.jackcess.Database;
import com.healthmarketscience.jackcess.DatabaseBuilder;
import com.healthmarketscience.jackcess.Row;
import com.healthmarketscience.jackcess.Table;
import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.io.PrintStream;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.Set;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

class MainTest {
    @TempDir
    Path folder;

    private final ByteArrayOutputStream errors = new ByteArrayOutputStream();

    @BeforeEach
    void writeFolder() throws IOException {
        SmallFolder.writeTo(folder);
    }

    private Path target() {
        return folder.resolve("mero.mdb");
    }

    private int run(String... arguments) {
        PrintStream nowhere = new PrintStream(new ByteArrayOutputStream());
        return Main.run(arguments, nowhere, new PrintStream(errors, true, StandardCharsets.UTF_8));
    }

    private int build() {
        return run("build", folder.toString(), target().toString());
    }

    private void assertRefused(String file, String complaint) {
        assertEquals(1, build());
        assertEquals(folder.resolve(file) + ":" + complaint, errors.toString(StandardCharsets.UTF_8).strip());
        assertFalse(Files.exists(target()));
    }

    private void replace(String file, String text, String by) throws IOException {
        Path path = folder.resolve(file);
        String before = Files.readString(path);
        assertTrue(before.contains(text));
        Files.writeString(path, before.replace(text, by));
    }

    @Test
    void writesOneTablePerStationInJet4() throws IOException {
        assertEquals(0, build());
        try (Database database = new DatabaseBuilder(target()).setReadOnly(true).open()) {
            assertEquals(Database.FileFormat.V2000, database.getFileFormat());
            assertEquals(Set.of("List3", "List7"), database.getTableNames());
            Table table = database.getTable("List7");
            assertEquals(
                    "[doba, 5, 2, 1, 05, 02, 01, 005]",
                    table.getColumns().stream().map(column -> column.getName()).toList().toString());
            List<Object> durations = new ArrayList<>();
            for (Row row : table) {
                durations.add(row.getShort("doba").intValue());
            }
            assertEquals(RainTable.DURATIONS_MIN, durations);
            table.reset();
            assertEquals(1.5f, table.getNextRow().getFloat("5"));
            assertEquals("004", database.getTable("List3").getColumns().get(7).getName());
        }
    }

    @Test
    void marksDemonstrationValues() throws IOException {
        Files.writeString(folder.resolve("demo.csv"), "poznamka\nUkázková data, nejde o měření.\n");
        assertEquals(0, build());
        try (Database database = new DatabaseBuilder(target()).setReadOnly(true).open()) {
            assertEquals("Ukázková data, nejde o měření.", database.getTable("Demo").getNextRow().getString("poznamka"));
        }
    }

    @Test
    void theSameInputGivesTheSameBytes() throws IOException {
        assertEquals(0, build());
        byte[] first = Files.readAllBytes(target());
        assertEquals(0, build());
        assertArrayEquals(first, Files.readAllBytes(target()));
    }

    @Test
    void aSpreadsheetsByteOrderMarkAndLineEndsAreTaken() throws IOException {
        Path file = folder.resolve("rain/List7.csv");
        Files.writeString(file, "\uFEFF" + Files.readString(file).replace("\n", "\r\n"));
        assertEquals(0, build());
    }

    @Test
    void demoValuesAreWrittenForEveryStation() throws IOException {
        assertEquals(0, run("demo-values", folder.toString()));
        List<String> lines = Files.readAllLines(folder.resolve("rain/List3.csv"));
        assertEquals("doba,5,2,1,05,02,01,004", lines.get(0));
        // 101.5 * 38 / 14 * (1 - 0.369) = 173.84
        assertTrue(lines.get(1).startsWith("5,") && lines.get(1).split(",")[3].equals("173.8"), lines.get(1));
        assertEquals(0, build());
    }

    @Test
    void badValuesAreNamedByFileAndLine() throws IOException {
        replace("rain/List7.csv", "15,1.3", "15,1;3");
        assertRefused("rain/List7.csv", "4: an intensity must be a number with a decimal point, found \"1;3\"");
    }

    @Test
    void aDecimalCommaIsOneFieldTooMany() throws IOException {
        replace("rain/List7.csv", "15,1.3", "15,1,3");
        assertRefused("rain/List7.csv", "4: 8 fields expected, 9 found");
    }

    @Test
    void anEmptyValueIsRefused() throws IOException {
        replace("rain/List3.csv", "131.2", "");
        assertRefused("rain/List3.csv", "10: an intensity must be a number with a decimal point, found \"\"");
    }

    @Test
    void durationsMustComeInTheirOrder() throws IOException {
        replace("rain/List7.csv", "20,1.2", "25,1.2");
        assertRefused("rain/List7.csv", "5: the duration must be 20, found \"25\"");
    }

    @Test
    void missingAndExcessRowsAreRefused() throws IOException {
        replace("rain/List7.csv", "120,0.7,2,3,4,5,6,131.2\n", "");
        assertRefused("rain/List7.csv", "10: the row of duration 120 min is missing");
        errors.reset();
        Files.writeString(
                folder.resolve("rain/List7.csv"), "doba,5,2,1,05,02,01,005\n" + SmallFolder.ROWS + "180,1,1,1,1,1,1,1\n");
        assertRefused("rain/List7.csv", "11: there must be 9 rows, no more");
    }

    @Test
    void anUnknownHeaderIsRefused() throws IOException {
        replace("rain/List7.csv", "005", "0.05");
        assertRefused(
                "rain/List7.csv",
                "1: the header must be \"doba,5,2,1,05,02,01,005\" or \"doba,5,2,1,05,02,01,004\"");
    }

    @Test
    void aStationWithoutFileAndAFileWithoutStationAreRefused() throws IOException {
        Files.delete(folder.resolve("rain/List3.csv"));
        assertRefused("rain/List3.csv", " the file is missing");
        errors.reset();
        SmallFolder.writeTo(folder);
        Files.writeString(folder.resolve("rain/List8.csv"), "doba,5,2,1,05,02,01,005\n" + SmallFolder.ROWS);
        assertRefused("rain/List8.csv", " no station in stations.csv has this number");
    }

    @Test
    void stationNumbersAndPositionsAreChecked() throws IOException {
        replace("stations.csv", "Sázavou;3", "Sázavou;7");
        assertRefused("stations.csv", "3: the number 7 stands in line 2 already");
        errors.reset();
        replace("stations.csv", "2;Žďár nad Sázavou;7", "3;Žďár nad Sázavou;3");
        assertRefused("stations.csv", "3: the position must be 2");
        errors.reset();
        replace("stations.csv", "3;Žďár nad Sázavou;3", "2;Žďár nad Sázavou;03");
        assertRefused("stations.csv", "3: the number must be a whole number from 1 to 32767: \"03\"");
    }

    @Test
    void aFileInAnotherEncodingIsRefused() throws IOException {
        Files.write(folder.resolve("stations.csv"), SmallFolder.STATIONS.getBytes("windows-1250"));
        assertRefused("stations.csv", " the file is not UTF-8 text");
    }

    @Test
    void aFailedBuildKeepsTheDatabaseThatIsThere() throws IOException {
        assertEquals(0, build());
        byte[] before = Files.readAllBytes(target());
        replace("rain/List7.csv", "15,1.3", "15,x");
        assertEquals(1, build());
        assertArrayEquals(before, Files.readAllBytes(target()));
    }

    @Test
    void wrongArgumentsShowTheUsage() {
        assertEquals(2, run("build", folder.toString()));
        assertTrue(errors.toString(StandardCharsets.UTF_8).startsWith("usage: "));
    }
}
