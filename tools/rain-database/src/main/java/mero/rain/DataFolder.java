// SPDX-License-Identifier: MIT
package mero.rain;

import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.DirectoryStream;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.Optional;
import java.util.Set;

/** The folder of CSV files: stations.csv, rain/List<N>.csv for each station, demo.csv for demonstration values. */
record DataFolder(Path folder) {
    /** Maximum length of a text column of the database. */
    private static final int LONGEST_NOTE = 255;

    List<Station> stations() throws IOException, InputException {
        return Station.readAll(folder.resolve("stations.csv"));
    }

    /** The tables of all stations in the order of the station list. A file that belongs to no station is an error. */
    Map<Station, RainTable> rainTables() throws IOException, InputException {
        Map<Station, RainTable> tables = new LinkedHashMap<>();
        Set<Path> read = new HashSet<>();
        for (Station station : stations()) {
            Path file = csvOf(station);
            tables.put(station, RainTable.read(file));
            read.add(file);
        }
        try (DirectoryStream<Path> files = Files.newDirectoryStream(rainFolder(), "*.csv")) {
            for (Path file : files) {
                if (!read.contains(file)) {
                    throw new InputException(file, "no station in stations.csv has this number");
                }
            }
        }
        return tables;
    }

    /** The note that marks the values as demonstration; empty when the folder has no demo.csv. */
    Optional<String> demoNote() throws IOException, InputException {
        Path file = folder.resolve("demo.csv");
        if (!Files.exists(file)) {
            return Optional.empty();
        }
        List<String> lines = TextFile.lines(file);
        if (lines.isEmpty() || !lines.get(0).equals(RainDatabaseWriter.DEMO_COLUMN)) {
            throw new InputException(file, 1, "the header must be \"" + RainDatabaseWriter.DEMO_COLUMN + "\"");
        }
        if (lines.size() != 2 || lines.get(1).isBlank()) {
            throw new InputException(file, 2, "one line of text must follow the header");
        }
        if (lines.get(1).length() > LONGEST_NOTE) {
            throw new InputException(file, 2, "the text must not be longer than " + LONGEST_NOTE + " characters");
        }
        return Optional.of(lines.get(1));
    }

    /** Writes the demonstration values of every station. */
    void writeDemoValues() throws IOException, InputException {
        Files.createDirectories(rainFolder());
        for (Station station : stations()) {
            Files.writeString(csvOf(station), DemoValues.of(station).toCsv(), StandardCharsets.UTF_8);
        }
    }

    private Path rainFolder() {
        return folder.resolve("rain");
    }

    private Path csvOf(Station station) {
        return rainFolder().resolve(station.tableName() + ".csv");
    }
}
