# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2154 # the files of this folder share their variables
# A household that has entered some of what it owns.

LongDescription="Rolled front, three keys, of which one is worn. The upper left drawer has a false back behind which \
lies a second lock. Restored in 2004; the bill of the restorer is kept with the receipt. The veneer of the right door \
is chipped near the hinge, as the photograph in the fire safe shows."

# household_with_assets HOME: Ann Fairbanks and eight things of hers.
household_with_assets() {
    use_home "$Place/$1"
    "$Here/../../scripts/lay-database" "$Build/data/KTL.db"
    sqlcipher_with_key "$Database" "
        update Personal_Info set [Introduced] = '1', [First] = 'Ann', [Middle] = 'Q', [Last] = 'Fairbanks',
            [Address] = '12 Orchard Lane', [City] = 'Albany', [State] = 'NY', [ZIP] = '12205-AB',
            [Home Phone1] = '518', [Home Phone2] = '555', [Home Phone3] = '0101', [EMail] = 'ann@home.example',
            [Policy Company] = 'Tidewater Mutual', [Policy Number] = 'TM-4711-08', [Policy Expiration] = '12/31/2027',
            [AssetValue] = 78342900;
        insert into Inventory (Area, Location, Category, Type, Year, Make, Model, [Serial/ VIN / ID], [Date Purchased],
            Amount, Receipt, [Receipt Location], Description, Purchased, [Parts Type],
            [Parts Coverage], [Parts Amount], [Parts Month], [Parts Day], [Parts Year], [Labor Type], [Labor Coverage],
            [Labor Amount], [Labor Month], [Labor Day], [Labor Year], [Warranty Description])
        select *, 'None', 'None', 'None', 'None', 'None', 'None', 'None', 'None', 'None', 'None', 'None', 'None', 'None'
        from (values
        ('Indoor', 'Family Room', 'Cameras', 'Camcorder', '2019', 'Northlight', 'V-300 \"Pro\"', 'SN 0042/7',
            '7/4/2019', '\$1,234.56', 'Yes', 'Fire safe, folder 3', 'With case and two batteries.', 'Used'),
        ('Indoor', 'Attic', 'Art', 'Brass Kestrel', '1931', 'Unknown', 'Unknown', 'Unknown', '10/23/2026', '\$80.00',
            'No', 'None', 'None', 'New'),
        ('Indoor', 'Library', 'Antiques', 'Secretary Desk With Hidden Drawer', '1880', 'Hollis & Daughter',
            'Walnut, rolled front', 'Branded 114 inside the left drawer', '3/14/2001', '\$4,850.00', 'Yes',
            'Desk, second drawer', '$LongDescription', 'Used'),
        ('Indoor', 'Kitchen', 'Appliances', 'Dishwasher', '2022', 'Brightwater', 'DW-60', 'BW60-2218-7741',
            '5/2/2022', '\$749.00', 'Yes', 'File cabinet', 'None', 'New'),
        ('Outdoor', 'Shed', 'Garden', 'Lawn Mower', '2020', 'Greenfield', 'LM 48', 'None', '4/11/2020', '\$389.50',
            'Yes', 'File cabinet', 'None', 'New'),
        ('Indoor', 'Bedroom', 'Jewelry', 'Pearl Necklace', '1962', 'Unknown', 'Unknown', 'Unknown', '6/1/1962',
            '\$530.00', 'No', 'None', 'Inherited; appraised in 2019.', 'Used'),
        ('Indoor', 'Study', 'Computers', 'Notebook', '2024', 'Meridian', 'M15', '7QX-22810', '2/9/2024',
            '\$1,379.00', 'Yes', 'File cabinet', 'None', 'New'),
        ('Indoor', 'Living Room', 'Furniture', 'Sofa', '2018', 'Hearth & Home', 'Three seats', 'Unknown',
            '9/15/2018', '\$1,210.00', 'Yes', 'File cabinet', 'Blue; the left arm is worn.', 'New'));"
}
