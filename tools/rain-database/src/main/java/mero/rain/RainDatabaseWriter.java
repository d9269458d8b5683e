// SPDX-License-Identifier: MIT
package mero.rain;

import com.healthmarketscience.jackcess.ColumnBuilder;
import com.healthmarketscience.jackcess.DataType;
import com.healthmarketscience.jackcess.Database;
import com.healthmarketscience.jackcess.DatabaseBuilder;
import com.healthmarketscience.jackcess.DateTimeType;
import com.healthmarketscience.jackcess.Row;
import com.healthmarketscience.jackcess.Table;
import com.healthmarketscience.jackcess.TableBuilder;
import java.io.IOException;
import java.math.BigDecimal;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.StandardCopyOption;
import java.time.LocalDateTime;
import java.util.ArrayList;
import java.util.List;
import java.util.Map;
import java.util.Optional;

/**
 * Writes the rain database, a Jet 4 file: one table per station and, for demonstration values, the table that
 * marks the file as such. The same input gives the same bytes.
 */
final class RainDatabaseWriter {
    static final String DEMO_TABLE = "Demo";
    static final String DEMO_COLUMN = "poznamka";

    /** Time of creation and change of every table in the catalog. Fixed, so that every build gives the same file. */
    private static final LocalDateTime CATALOG_TIME = LocalDateTime.of(2026, 1, 1, 0, 0);

    private RainDatabaseWriter() {}

    /** Writes a file beside the target and renames it, so that a failure leaves an existing database unchanged. */
    static void write(Path target, Map<Station, RainTable> tables, Optional<String> demo_note) throws IOException {
        Path unfinished = target.resolveSibling(target.getFileName() + ".new");
        try {
            fill(unfinished, tables, demo_note);
            Files.move(unfinished, target, StandardCopyOption.REPLACE_EXISTING);
        } finally {
            Files.deleteIfExists(unfinished);
        }
    }

    private static void fill(Path file, Map<Station, RainTable> tables, Optional<String> demo_note)
            throws IOException {
        DatabaseBuilder builder = new DatabaseBuilder(file).setFileFormat(Database.FileFormat.V2000).setAutoSync(false);
        try (Database database = builder.create()) {
            database.setDateTimeType(DateTimeType.LOCAL_DATE_TIME);
            for (Map.Entry<Station, RainTable> entry : tables.entrySet()) {
                addStation(database, entry.getKey(), entry.getValue());
            }
            if (demo_note.isPresent()) {
                addNote(database, demo_note.get());
            }
            fixCatalogTimes(database);
            database.flush();
        }
    }

    /**
     * The duration is an Integer (16 bit) and an intensity a Single, as in the program. So values are rounded only once,
     * when the file is built.
     */
    private static void addStation(Database database, Station station, RainTable rain) throws IOException {
        TableBuilder builder = new TableBuilder(station.tableName());
        builder.addColumn(new ColumnBuilder(RainTable.DURATION_COLUMN, DataType.INT));
        for (String column : rain.columns()) {
            builder.addColumn(new ColumnBuilder(column, DataType.FLOAT));
        }
        Table table = builder.toTable(database);
        for (int at = 0; at < rain.intensities().size(); ++at) {
            List<Object> row = new ArrayList<>();
            row.add(RainTable.DURATIONS_MIN.get(at).shortValue());
            for (BigDecimal intensity : rain.intensities().get(at)) {
                row.add(intensity.floatValue());
            }
            table.addRow(row.toArray());
        }
    }

    private static void addNote(Database database, String note) throws IOException {
        Table table = new TableBuilder(DEMO_TABLE)
                .addColumn(new ColumnBuilder(DEMO_COLUMN, DataType.TEXT).setMaxLength())
                .toTable(database);
        table.addRow(note);
    }

    static void fixCatalogTimes(Database database) throws IOException {
        Table catalog = database.getSystemTable("MSysObjects");
        for (Row row : catalog) {
            row.put("DateCreate", CATALOG_TIME);
            row.put("DateUpdate", CATALOG_TIME);
            catalog.updateRow(row);
        }
    }
}
