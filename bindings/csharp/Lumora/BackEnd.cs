// What draws the ink. The numbers are those of the commands that the overlay window takes.
namespace Lumora
{
    public enum BackEnd
    {
        Composition = 40020,
        Direct2D = 40021,
        Gdi = 40022,
    }
}
