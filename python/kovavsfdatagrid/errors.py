"""The exceptions of the package."""


class Error(Exception):
    """An error of the database or of the data access."""

    def __init__(self, Number: int, Description: str, Source: str = '', SQLState: str = '', NativeError: int = 0):
        super().__init__(Description)
        #: 0x800A0000 plus a number of ADODB.ErrorValueEnum, or a number of ADODB.ProviderErrorEnum, as a signed number.
        self.Number = Number
        #: For the user, in the language of the application (KOVAVSFDataGrid.Language).
        self.Description = Description
        #: The database's name; empty for an error of the data access itself.
        self.Source = Source
        #: Five characters, or empty when the database gave none.
        self.SQLState = SQLState
        #: The database library's own number, or 0.
        self.NativeError = NativeError


class ControlError(Exception):
    """UseModel can be read (393) and written (382) at design time only."""

    def __init__(self, Number: int, Description: str):
        super().__init__(Description)
        self.Number = Number
        #: For the program's developer, in English.
        self.Description = Description

    @property
    def number(self) -> int:
        """An older name of Number."""
        return self.Number

    @property
    def description(self) -> str:
        """An older name of Description."""
        return self.Description
