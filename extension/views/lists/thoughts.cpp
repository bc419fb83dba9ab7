#include "lists/thoughts.hpp"

#include <array>

namespace mirune {

namespace {

// The order is that of the days. The first five and the last five are the planner's own choice and keep the wording and
// the marks in which it has them. No author comes twice in a row, and short sayings take turns with long ones.
constexpr auto table = std::to_array<std::string_view>({
    "Life is 10% what happens to us and 90% how we react to it.;;;;Charles R. Swindoll",
    "In the middle of difficulty lies opportunity.;;;;Albert Einstein",
    "Keep your eyes on the stars, and your feet on the ground.;;;;Theodore Roosevelt",
    "Imagination is more important than knowledge.;;;;Albert Einstein",
    "You can't cross the sea merely by standing and staring at the water.;;;;Rabindranath Tagore",
    "They can because they think they can.;;;;Virgil",
    "Ever tried. Ever failed. No matter. Try again. Fail again. Fail better.;;;;Samuel Beckett",
    "You must do the thing you think you cannot do.;;;;Eleanor Roosevelt",
    "For the things we have to learn before we can do them, we learn by doing them.;;;;Aristotle",
    "A journey of a thousand miles begins with a single step.;;;;Lao Tzu",
    "All things are so very uncertain, and that’s exactly what makes me feel reassured.;;;;Tove Jansson",
    "We suffer more often in imagination than in reality.;;;;Seneca",
    "In the depth of winter, I finally learned that within me there lay an invincible summer.;;;;Albert Camus",
    "There are years that ask questions and years that answer.;;;;Zora Neale Hurston",
    "Chance favors only the prepared mind.;;;;Louis Pasteur",
    "If I have seen further, it is by standing on the shoulders of giants.;;;;Isaac Newton",
    "We must cultivate our garden.;;;;Voltaire",
    "Life is like riding a bicycle. To keep your balance, you must keep moving.;;;;Albert Einstein",
    "O snail, climb Mount Fuji, but slowly, slowly!;;;;Kobayashi Issa",
    "Isn’t it nice to think that tomorrow is a new day with no mistakes in it yet?;;;;L. M. Montgomery",
    "There are always flowers for those who want to see them.;;;;Henri Matisse",
    "No one is useless in this world who lightens the burden of it for any one else.;;;;Charles Dickens",
    "The mountains are calling and I must go.;;;;John Muir",
    "What is this life if, full of care, we have no time to stand and stare?;;;;W. H. Davies",
    "Pay attention. Be astonished. Tell about it.;;;;Mary Oliver",
    "Knowing is not enough; we must apply. Willing is not enough; we must do.;;;;Johann Wolfgang von Goethe",
    "Be water, my friend.;;;;Bruce Lee",
    "If you have a garden and a library, you have everything you need.;;;;Cicero",
    "Dost thou love life? Then do not squander time, for that’s the stuff life is made of.;;;;Benjamin Franklin",
    "Attention is the rarest and purest form of generosity.;;;;Simone Weil",
    "The world will never starve for want of wonders; but only for want of wonder.;;;;G. K. Chesterton",
    "No act of kindness, no matter how small, is ever wasted.;;;;Aesop",
    "What do we live for, if it is not to make life less difficult to each other?;;;;George Eliot",
    "Walk on air against your better judgement.;;;;Seamus Heaney",
    "When we are no longer able to change a situation, we are challenged to change ourselves.;;;;Viktor Frankl",
    "The impeded stream is the one that sings.;;;;Wendell Berry",
    "If you add only a little to a little and do this often, soon that little will become great.;;;;Hesiod",
    "There is no hurry. We shall get there some day.;;;;A. A. Milne",
    "Far and away the best prize that life has to offer is the chance to work hard at work worth doing.;;;;Theodore "
    "Roosevelt",
    "How we spend our days is, of course, how we spend our lives.;;;;Annie Dillard",
    "The world is so full of a number of things, I’m sure we should all be as happy as kings.;;;;Robert Louis "
    "Stevenson",
    "Well done is better than well said.;;;;Benjamin Franklin",
    "It is the greatest of all mistakes to do nothing because you can only do little – do what you can.;;;;Sydney "
    "Smith",
    "I love deadlines. I love the whooshing noise they make as they go by.;;;;Douglas Adams",
    "A thing of beauty is a joy for ever.;;;;John Keats",
    "There is nothing – absolute nothing – half so much worth doing as simply messing about in boats.;;;;Kenneth "
    "Grahame",
    "The beginning is the most important part of any work.;;;;Plato",
    "Love doesn’t just sit there, like a stone; it has to be made, like bread, remade all the time, made "
    "new.;;;;Ursula K. Le Guin",
    "All things excellent are as difficult as they are rare.;;;;Baruch Spinoza",
    "Plans are only good intentions unless they immediately degenerate into hard work.;;;;Peter Drucker",
    "Anyone can hold the helm when the sea is calm.;;;;Publilius Syrus",
    "Let us be grateful to people who make us happy; they are the charming gardeners who make our souls "
    "blossom.;;;;Marcel Proust",
    "You can’t use up creativity. The more you use, the more you have.;;;;Maya Angelou",
    "If you have built castles in the air, your work need not be lost; that is where they should be. Now put the "
    "foundations under them.;;;;Henry David Thoreau",
    "One never notices what has been done; one can only see what remains to be done.;;;;Marie Curie",
    "An adventure is only an inconvenience rightly considered.;;;;G. K. Chesterton",
    "Forget not that the earth delights to feel your bare feet and the winds long to play with your hair.;;;;Kahlil "
    "Gibran",
    "All things are difficult before they are easy.;;;;Thomas Fuller",
    "It’s no use going back to yesterday, because I was a different person then.;;;;Lewis Carroll",
    "The best way out is always through.;;;;Robert Frost",
    "Life can only be understood backwards; but it must be lived forwards.;;;;Søren Kierkegaard",
    "Wisely and slow; they stumble that run fast.;;;;William Shakespeare",
    "It is only with the heart that one can see rightly; what is essential is invisible to the eye.;;;;Antoine de "
    "Saint-Exupéry",
    "Begin at once to live, and count each separate day as a separate life.;;;;Seneca",
    "Nature uses only the longest threads to weave her patterns, so each small piece of her fabric reveals the "
    "organization of the entire tapestry.;;;;Richard Feynman",
    "Let your life lightly dance on the edges of Time like dew on the tip of a leaf.;;;;Rabindranath Tagore",
    "No bird soars too high, if he soars with his own wings.;;;;William Blake",
    "Almost everything will work again if you unplug it for a few minutes, including you.;;;;Anne Lamott",
    "The art of being wise is the art of knowing what to overlook.;;;;William James",
    "If you wish to make an apple pie from scratch, you must first invent the universe.;;;;Carl Sagan",
    "Time is what we want most, but what, alas! we use worst.;;;;William Penn",
    "The great thing in this world is not so much where we stand, as in what direction we are moving.;;;;Oliver "
    "Wendell Holmes Sr.",
    "Life is either a daring adventure or nothing.;;;;Helen Keller",
    "“Just living is not enough,” said the butterfly, “one must have sunshine, freedom and a little flower.”;;;;Hans "
    "Christian Andersen",
    "I’m not afraid of storms, for I’m learning how to sail my ship.;;;;Louisa May Alcott",
    "Three things in human life are important: the first is to be kind; the second is to be kind; and the third is to "
    "be kind.;;;;Henry James",
    "Great works are performed not by strength, but by perseverance.;;;;Samuel Johnson",
    "Those who contemplate the beauty of the earth find reserves of strength that will endure as long as life "
    "lasts.;;;;Rachel Carson",
    "Darkness cannot drive out darkness; only light can do that.;;;;Martin Luther King Jr.",
    "Do not spoil what you have by desiring what you have not; remember that what you now have was once among the "
    "things you only hoped for.;;;;Epicurus",
    "A ship in harbor is safe, but that is not what ships are built for.;;;;John A. Shedd",
    "Have nothing in your houses that you do not know to be useful, or believe to be beautiful.;;;;William Morris",
    "There is a crack in everything. That’s how the light gets in.;;;;Leonard Cohen",
    "What you do makes a difference, and you have to decide what kind of difference you want to make.;;;;Jane Goodall",
    "I’m so glad I live in a world where there are Octobers.;;;;L. M. Montgomery",
    "In all beginnings dwells a magic force for guarding us and helping us to live.;;;;Hermann Hesse",
    "Where you tend a rose, my lad, a thistle cannot grow.;;;;Frances Hodgson Burnett",
    "Learning without thought is labor lost; thought without learning is perilous.;;;;Confucius",
    "To travel hopefully is a better thing than to arrive.;;;;Robert Louis Stevenson",
    "Habit is habit, and not to be flung out of the window by any man, but coaxed downstairs a step at a time.;;;;Mark "
    "Twain",
    "Come forth into the light of things, let Nature be your teacher.;;;;William Wordsworth",
    "How wonderful it is that nobody need wait a single moment before starting to improve the world.;;;;Anne Frank",
    "The only way to have a friend is to be one.;;;;Ralph Waldo Emerson",
    "We can only see a short distance ahead, but we can see plenty there that needs to be done.;;;;Alan Turing",
    "For all that has been – Thanks! To all that shall be – Yes!;;;;Dag Hammarskjöld",
    "Happiness, not in another place but this place, not for another hour but this hour.;;;;Walt Whitman",
    "The best way to predict the future is to invent it.;;;;Alan Kay",
    "There are two ways of spreading light: to be the candle or the mirror that reflects it.;;;;Edith Wharton",
    "What makes the desert beautiful is that somewhere it hides a well.;;;;Antoine de Saint-Exupéry",
    "To see a World in a Grain of Sand and a Heaven in a Wild Flower, hold Infinity in the palm of your hand and "
    "Eternity in an hour.;;;;William Blake",
    "The soul becomes dyed with the color of its thoughts.;;;;Marcus Aurelius",
    "After climbing a great hill, one only finds that there are many more hills to climb.;;;;Nelson Mandela",
    "I have always imagined that Paradise will be a kind of library.;;;;Jorge Luis Borges",
    "Do your little bit of good where you are; it’s those little bits of good put together that overwhelm the "
    "world.;;;;Desmond Tutu",
    "A schedule defends from chaos and whim. It is a net for catching days.;;;;Annie Dillard",
    "The more that you read, the more things you will know. The more that you learn, the more places you’ll go.;;;;Dr. "
    "Seuss",
    "Every day is a journey, and the journey itself is home.;;;;Matsuo Bashō",
    "In the beginner’s mind there are many possibilities, but in the expert’s there are few.;;;;Shunryu Suzuki",
    "If this isn’t nice, I don’t know what is.;;;;Kurt Vonnegut",
    "Nobody sees a flower really; it is so small. We haven’t time, and to see takes time – like to have a friend takes "
    "time.;;;;Georgia O’Keeffe",
    "In every walk with nature one receives far more than he seeks.;;;;John Muir",
    "Forever is composed of nows.;;;;Emily Dickinson",
    "First say to yourself what you would be; and then do what you have to do.;;;;Epictetus",
    "The most certain sign of wisdom is cheerfulness.;;;;Michel de Montaigne",
    "Tell me, what is it you plan to do with your one wild and precious life?;;;;Mary Oliver",
    "Adopt the pace of nature: her secret is patience.;;;;Ralph Waldo Emerson",
    "It is not enough to be industrious; so are the ants. What are you industrious about?;;;;Henry David Thoreau",
    "Walk as if you are kissing the Earth with your feet.;;;;Thich Nhat Hanh",
    "Our doubts are traitors, and make us lose the good we oft might win, by fearing to attempt.;;;;William "
    "Shakespeare",
    "The butterfly counts not months but moments, and has time enough.;;;;Rabindranath Tagore",
    "Work is love made visible.;;;;Kahlil Gibran",
    "No need to hurry. No need to sparkle. No need to be anybody but oneself.;;;;Virginia Woolf",
    "If Winter comes, can Spring be far behind?;;;;Percy Bysshe Shelley",
    "To sit in the shade on a fine day, and look upon verdure, is the most perfect refreshment.;;;;Jane Austen",
    "Always do right. This will gratify some people and astonish the rest.;;;;Mark Twain",
    "One ought, every day at least, to hear a little song, read a good poem, see a fine picture, and, if it were "
    "possible, to speak a few reasonable words.;;;;Johann Wolfgang von Goethe",
    "The life so short, the craft so long to learn.;;;;Geoffrey Chaucer",
    "All we have to decide is what to do with the time that is given us.;;;;J. R. R. Tolkien",
    "Dripping water hollows out a stone.;;;;Ovid",
    "Be patient toward all that is unsolved in your heart and try to love the questions themselves.;;;;Rainer Maria "
    "Rilke",
    "Hope is the thing with feathers that perches in the soul.;;;;Emily Dickinson",
    "Those who bring sunshine to the lives of others cannot keep it from themselves.;;;;J. M. Barrie",
    "To strive, to seek, to find, and not to yield.;;;;Alfred, Lord Tennyson",
    "Hold fast to dreams, for if dreams die, life is a broken-winged bird that cannot fly.;;;;Langston Hughes",
    "The strongest of all warriors are these two – Time and Patience.;;;;Leo Tolstoy",
    "Impermanence is a principle of harmony. When we don’t struggle against it, we are in harmony with "
    "reality.;;;;Thich Nhat Hanh",
    "Not all of us can do great things. But we can do small things with great love.;;;;Mother Teresa",
    "The Future Belongs To The Competent. Get Good, Get Better, Be The Best!;;;;Brian Tracy",
    "When I let go of what I am, I become what I might be.;;;;Lao Tzu",
    "Do not go where the path may lead, go instead where there is no path and leave a trail.;;;;Ralph Waldo Emerson",
});
static_assert(table.size() == 140);

}  // namespace

std::span<const std::string_view> thoughtTable() {
  return table;
}

}  // namespace mirune
