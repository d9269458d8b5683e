// SPDX-License-Identifier: MIT
package mero.rain;

import java.io.IOException;
import java.math.BigDecimal;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;

/**
 * The rain intensities of one station in l/s.ha: one row per duration, one column per periodicity.
 * The last column is "005" (periodicity 0.05), at some stations "004" (0.04) instead.
 */
record RainTable(String lastColumn, List<List<BigDecimal>> intensities) {
    static final List<Integer> DURATIONS_MIN = List.of(5, 10, 15, 20, 30, 45, 60, 90, 120);
    static final String DURATION_COLUMN = "doba";
    static final List<String> COMMON_COLUMNS = List.of("5", "2", "1", "05", "02", "01");
    static final List<String> LAST_COLUMNS = List.of("005", "004");

    /** The confirm button of the rain dialog adds nine intensities in a 16-bit integer; one alone must fit too. */
    private static final BigDecimal LARGEST_INTENSITY = BigDecimal.valueOf(Short.MAX_VALUE);

    /** Column names of the intensities, in the table's order. */
    List<String> columns() {
        List<String> columns = new ArrayList<>(COMMON_COLUMNS);
        columns.add(lastColumn);
        return columns;
    }

    static String header(String lastColumn) {
        return DURATION_COLUMN + "," + String.join(",", COMMON_COLUMNS) + "," + lastColumn;
    }

    /** Text of the table's CSV file. */
    String toCsv() {
        StringBuilder csv = new StringBuilder(header(lastColumn)).append('\n');
        for (int row = 0; row < intensities.size(); ++row) {
            csv.append(DURATIONS_MIN.get(row));
            for (BigDecimal value : intensities.get(row)) {
                csv.append(',').append(value.toPlainString());
            }
            csv.append('\n');
        }
        return csv.toString();
    }

    /** Reads List<N>.csv: exactly the nine durations in ascending order, with all intensities. */
    static RainTable read(Path file) throws IOException, InputException {
        List<String> lines = TextFile.lines(file);
        String last_column = lastColumnOf(file, lines);
        List<List<BigDecimal>> rows = new ArrayList<>();
        for (int at = 1; at < lines.size(); ++at) {
            if (at > DURATIONS_MIN.size()) {
                throw new InputException(file, at + 1, "there must be " + DURATIONS_MIN.size() + " rows, no more");
            }
            rows.add(parseRow(file, at + 1, lines.get(at), DURATIONS_MIN.get(at - 1)));
        }
        if (rows.size() < DURATIONS_MIN.size()) {
            throw new InputException(
                    file,
                    lines.size() + 1,
                    "the row of duration " + DURATIONS_MIN.get(rows.size()) + " min is missing");
        }
        return new RainTable(last_column, rows);
    }

    private static String lastColumnOf(Path file, List<String> lines) throws InputException {
        for (String last_column : LAST_COLUMNS) {
            if (!lines.isEmpty() && lines.get(0).equals(header(last_column))) {
                return last_column;
            }
        }
        throw new InputException(
                file, 1, "the header must be \"" + header("005") + "\" or \"" + header("004") + "\"");
    }

    private static List<BigDecimal> parseRow(Path file, int line, String text, int duration_min)
            throws InputException {
        String[] fields = text.split(",", -1);
        int expected = 1 + COMMON_COLUMNS.size() + 1;
        if (fields.length != expected) {
            throw new InputException(file, line, expected + " fields expected, " + fields.length + " found");
        }
        if (!fields[0].equals(Integer.toString(duration_min))) {
            throw new InputException(
                    file, line, "the duration must be " + duration_min + ", found \"" + fields[0] + "\"");
        }
        List<BigDecimal> row = new ArrayList<>();
        for (int at = 1; at < fields.length; ++at) {
            row.add(intensity(file, line, fields[at]));
        }
        return row;
    }

    private static BigDecimal intensity(Path file, int line, String text) throws InputException {
        if (!text.matches("[0-9]{1,5}([.][0-9]{1,6})?")) {
            throw new InputException(
                    file, line, "an intensity must be a number with a decimal point, found \"" + text + "\"");
        }
        BigDecimal value = new BigDecimal(text);
        if (value.compareTo(LARGEST_INTENSITY) > 0) {
            throw new InputException(file, line, "the intensity is too large: \"" + text + "\"");
        }
        return value;
    }
}
