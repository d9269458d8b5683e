// SPDX-License-Identifier: MIT
package mero.rain;

import java.io.IOException;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.List;
import java.util.Map;

/** One rain-gauge station: its position in the program's list, its name and its number in the database. */
record Station(int position, String name, int number) {
    static final String HEADER = "position;name;number";
    private static final int LARGEST_NUMBER = Short.MAX_VALUE;

    /** Name of the station's table in the database. */
    String tableName() {
        return "List" + number;
    }

    /** Reads stations.csv: positions count up from 1, every number stands once. */
    static List<Station> readAll(Path file) throws IOException, InputException {
        List<String> lines = TextFile.lines(file);
        if (lines.isEmpty() || !lines.get(0).equals(HEADER)) {
            throw new InputException(file, 1, "the header must be \"" + HEADER + "\"");
        }
        List<Station> stations = new ArrayList<>();
        Map<Integer, Integer> line_of_number = new HashMap<>();
        for (int at = 1; at < lines.size(); ++at) {
            Station station = parse(file, at + 1, lines.get(at));
            if (station.position != at) {
                throw new InputException(file, at + 1, "the position must be " + at);
            }
            Integer earlier = line_of_number.put(station.number, at + 1);
            if (earlier != null) {
                throw new InputException(
                        file, at + 1, "the number " + station.number + " stands in line " + earlier + " already");
            }
            stations.add(station);
        }
        if (stations.isEmpty()) {
            throw new InputException(file, "there is no station in the file");
        }
        return stations;
    }

    private static Station parse(Path file, int line, String text) throws InputException {
        String[] fields = text.split(";", -1);
        if (fields.length != 3) {
            throw new InputException(file, line, "3 fields expected, " + fields.length + " found");
        }
        if (fields[1].isBlank()) {
            throw new InputException(file, line, "the name is empty");
        }
        return new Station(
                wholeNumber(file, line, "position", fields[0]),
                fields[1],
                wholeNumber(file, line, "number", fields[2]));
    }

    private static int wholeNumber(Path file, int line, String what, String text) throws InputException {
        if (!text.matches("[1-9][0-9]{0,4}") || Integer.parseInt(text) > LARGEST_NUMBER) {
            throw new InputException(
                    file, line, "the " + what + " must be a whole number from 1 to " + LARGEST_NUMBER + ": \"" + text + "\"");
        }
        return Integer.parseInt(text);
    }
}
