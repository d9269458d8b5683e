// SPDX-License-Identifier: MIT
package mero.rain;

import com.healthmarketscience.jackcess.Column;
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
import java.nio.file.Path;
import java.time.LocalDateTime;

/** Writes tests/data/odd_tables.mdb: unusual tables, for the tests of the reader. */
public final class ReaderFixture {
    private ReaderFixture() {}

    public static void main(String[] arguments) throws IOException {
        try (Database database = new DatabaseBuilder(Path.of(arguments[0]))
                .setFileFormat(Database.FileFormat.V2003)
                .create()) {
            database.setDateTimeType(DateTimeType.LOCAL_DATE_TIME);
            addCounting(database, "List1", 12);
            addCounting(database, "List2", 5);
            addEveryType(database);
            addCounting(database, "LIST4", 9);
            addCounting(database, "List5", 0);
            addDeletedRows(database);
            addCounting(database, "List7", 600);
            addNoStation(database);
            addDates(database);
            RainDatabaseWriter.fixCatalogTimes(database);
        }
    }

    /** Row r holds r in "doba" and r + 0.25 in "5". */
    private static Table addCounting(Database database, String name, int rows) throws IOException {
        Table table = new TableBuilder(name)
                .addColumn(new ColumnBuilder("Doba", DataType.INT))
                .addColumn(new ColumnBuilder("5", DataType.FLOAT))
                .toTable(database);
        for (int row = 1; row <= rows; ++row) {
            table.addRow((short) row, row + 0.25f);
        }
        return table;
    }

    /** One column per type; a row of values, a row of the same below zero or odd, a row of nulls. */
    private static void addEveryType(Database database) throws IOException {
        Table table = new TableBuilder("List3")
                .addColumn(new ColumnBuilder("byte", DataType.BYTE))
                .addColumn(new ColumnBuilder("integer", DataType.INT))
                .addColumn(new ColumnBuilder("long", DataType.LONG))
                .addColumn(new ColumnBuilder("single", DataType.FLOAT))
                .addColumn(new ColumnBuilder("double", DataType.DOUBLE))
                .addColumn(new ColumnBuilder("currency", DataType.MONEY))
                .addColumn(new ColumnBuilder("decimal", DataType.NUMERIC).setPrecision(28).setScale(4))
                .addColumn(new ColumnBuilder("text", DataType.TEXT).setLengthInUnits(50))
                .addColumn(new ColumnBuilder("narrow", DataType.TEXT).setLengthInUnits(50).setCompressedUnicode(true))
                .addColumn(new ColumnBuilder("date", DataType.SHORT_DATE_TIME))
                .addColumn(new ColumnBuilder("yesno", DataType.BOOLEAN))
                .addColumn(new ColumnBuilder("poznámka", DataType.MEMO))
                .toTable(database);
        LocalDateTime date = LocalDateTime.of(2026, 1, 2, 3, 4);
        table.addRow((byte) 200, (short) 120, 100000, 0.15f, 131.2, new BigDecimal("131.2"),
                new BigDecimal("123456789012345678.9012"), "131.2", "131.2", date, true, "7");
        table.addRow((byte) 0, (short) -120, -100000, -1.5e-7f, -1e300, new BigDecimal("-131.2345"),
                new BigDecimal("-0.0001"), "1,5", "žádný", date, false, "8");
        table.addRow(null, null, null, null, null, null, null, null, null, null, null, null);
    }

    /** Eleven rows; the third and the last are deleted. */
    private static void addDeletedRows(Database database) throws IOException {
        Table table = addCounting(database, "List6", 11);
        Column key = table.getColumn("Doba");
        for (Row row : table) {
            short number = (Short) key.getRowValue(row);
            if (number == 3 || number == 11) {
                table.deleteRow(row);
            }
        }
    }

    /** Its intensities are of types that hold no numbers. */
    private static void addDates(Database database) throws IOException {
        Table table = new TableBuilder("List8")
                .addColumn(new ColumnBuilder("doba", DataType.INT))
                .addColumn(new ColumnBuilder("5", DataType.SHORT_DATE_TIME))
                .addColumn(new ColumnBuilder("2", DataType.BOOLEAN))
                .addColumn(new ColumnBuilder("004", DataType.MEMO))
                .toTable(database);
        table.addRow((short) 5, LocalDateTime.of(2026, 1, 2, 3, 4), true, "131.2");
    }

    private static void addNoStation(Database database) throws IOException {
        addCounting(database, "List12 (záloha)", 1);
    }
}
